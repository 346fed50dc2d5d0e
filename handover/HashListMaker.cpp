#include "handover/HashListMaker.h"

#include "media/FileChecks.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace vantrell
{

HashListMaker::HashListMaker(const QStringList &places, const QString &target, bool isKept)
    : m_journal(isKept ? std::make_unique<ChecksumJournal>(target) : nullptr)
{
    const QString folder = QFileInfo(target).path();
    QSet<QString> seen;
    for (const QString &given : places) {
        const QString place = QDir::cleanPath(given);
        if (given.isEmpty() || seen.contains(place))
            continue;
        seen.insert(place);
        m_paths.push_back(QFile::encodeName(place));
        HashListEntry entry;
        entry.file = HashList::entryName(place, folder);
        m_list.entries.push_back(std::move(entry));
    }
    m_list.tool =
        QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion();
}

std::optional<HashListMaker::Made> HashListMaker::make(const GoesOn &goesOn,
                                                       std::chrono::milliseconds patience)
{
    m_list.started = QDateTime::currentDateTimeUtc();
    const FileChecks checks(m_paths);
    const auto facts = checks.answers([&goesOn] { return !goesOn({}); }, patience);
    if (!facts)
        return std::nullopt;
    std::vector<ChecksumRun::Task> tasks;
    std::vector<std::size_t> entryOfTask;
    std::vector<ChecksumResult> results(m_paths.size());
    for (std::size_t i = 0; i < m_paths.size(); ++i) {
        const FileFacts found = (*facts)[i].value_or(FileFacts());
        const auto known = m_journal && found.size && found.modified
                               ? m_journal->find(m_paths[i], *found.size, *found.modified)
                               : std::nullopt;
        if (known) {
            results[i] = *known;
            continue;
        }
        tasks.push_back({m_paths[i], {.md5 = true, .sha1 = false, .xxhash64 = true}, found.size.value_or(0)});
        entryOfTask.push_back(i);
    }
    ChecksumRun run(std::move(tasks));
    const auto read = run.results(
        goesOn,
        [&](std::size_t task, const ChecksumResult &result) {
            if (m_journal && result.state == ChecksumResult::State::Done)
                m_journal->add(m_paths[entryOfTask[task]], result);
        },
        patience);
    if (!read)
        return std::nullopt;
    for (std::size_t i = 0; i < read->size(); ++i)
        results[entryOfTask[i]] = (*read)[i];
    Made made{m_list, {}};
    made.list.entries.clear();
    for (std::size_t i = 0; i < m_paths.size(); ++i) {
        const ChecksumResult &result = results[i];
        if (result.state != ChecksumResult::State::Done) {
            made.problems.push_back(
                {QFile::decodeName(m_paths[i]), result.state == ChecksumResult::State::Changed});
            continue;
        }
        HashListEntry entry = m_list.entries[i];
        entry.size = result.size;
        entry.modified = QDateTime::fromMSecsSinceEpoch(result.modified, Qt::UTC);
        entry.checksums = result.checksums;
        entry.made = result.made;
        made.list.entries.push_back(std::move(entry));
    }
    made.list.finished = QDateTime::currentDateTimeUtc();
    return made;
}

void HashListMaker::forget()
{
    if (m_journal)
        m_journal->remove();
}

} // namespace vantrell

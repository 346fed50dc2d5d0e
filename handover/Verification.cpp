#include "handover/Verification.h"

#include "media/FileChecks.h"

#include <QFile>

namespace vantrell
{

namespace
{

Verification::State stateOf(const std::optional<FileFacts> &facts, const HashListEntry &entry)
{
    using enum Verification::State;
    if (!facts)
        return Unreadable;
    if (!facts->exists)
        return Missing;
    return !entry.size || facts->size == entry.size ? Same : Changed;
}

Verification::State stateOf(const ChecksumResult &result, const HashListEntry &entry)
{
    using enum Verification::State;
    switch (result.state) {
    case ChecksumResult::State::Done:
        return entry.agreesWith(result.checksums) ? Same : Changed;
    case ChecksumResult::State::Missing:
        return Missing;
    case ChecksumResult::State::Changed:
        return Changed;
    case ChecksumResult::State::Unreadable:
        break;
    }
    return Unreadable;
}

} // namespace

Verification::Verification(std::vector<HashListEntry> entries, const QString &listFolder)
    : m_entries(std::move(entries))
{
    for (const HashListEntry &entry : m_entries)
        m_places.push_back(QFile::encodeName(HashList::placeOf(entry.file, listFolder)));
}

std::optional<std::vector<Verification::File>> Verification::compare(const GoesOn &goesOn,
                                                                     std::chrono::milliseconds patience) const
{
    const FileChecks checks(m_places);
    const auto facts = checks.answers([&goesOn] { return !goesOn({}); }, patience);
    if (!facts)
        return std::nullopt;
    std::vector<File> files;
    std::vector<ChecksumRun::Task> tasks;
    std::vector<std::size_t> entryOfTask;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        files.push_back({m_entries[i].file, stateOf((*facts)[i], m_entries[i])});
        if (files.back().state != State::Same)
            continue;
        tasks.push_back({m_places[i], m_entries[i].kinds(), (*facts)[i]->size.value_or(0)});
        entryOfTask.push_back(i);
    }
    ChecksumRun run(std::move(tasks));
    const auto results = run.results(goesOn, {}, patience);
    if (!results)
        return std::nullopt;
    for (std::size_t i = 0; i < results->size(); ++i) {
        const HashListEntry &entry = m_entries[entryOfTask[i]];
        const ChecksumKinds kinds = entry.kinds();
        const bool isKnown = kinds.md5 || kinds.sha1 || kinds.xxhash64;
        files[entryOfTask[i]].state = isKnown ? stateOf((*results)[i], entry) : State::Unreadable;
    }
    return files;
}

} // namespace vantrell

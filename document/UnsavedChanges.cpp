#include "document/UnsavedChanges.h"

#include "document/MyDocument.h"

#include <QLocale>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

namespace vantrell
{

namespace
{

/// From the first to behind the last of the steps between the file and the project.
using Range = std::pair<std::size_t, std::size_t>;

/// Nothing when no steps lead from one to the other.
std::optional<Range> unsavedSteps(const EditHistory &history, const ChangeMarks &marks)
{
    const std::vector<EditStep> &steps = history.steps();
    const std::size_t done = history.done();
    const auto isClean = [&](std::size_t at) {
        if (at == done)
            return !marks.isEdited();
        return (at < done ? steps[at].marks.before : steps[at - 1].marks.after) == marks.cleanState();
    };
    for (std::size_t at = done + 1; at > 0; --at) {
        if (isClean(at - 1))
            return Range(at - 1, done);
    }
    for (std::size_t at = done + 1; at <= steps.size(); ++at) {
        if (isClean(at))
            return Range(done, at);
    }
    return std::nullopt;
}

QString counted(std::size_t count, const char *singular, const char *plural)
{
    return count == 1 ? QStringLiteral("1 %1").arg(QLatin1String(singular))
                      : QStringLiteral("%1 %2").arg(QLocale(QLocale::English).toString(qulonglong(count)),
                                                    QLatin1String(plural));
}

} // namespace

std::size_t countUnsavedChanges(const EditHistory &history, const ChangeMarks &marks)
{
    if (!marks.isEdited())
        return 0;
    const std::optional<Range> range = unsavedSteps(history, marks);
    return std::max(range ? range->second - range->first : history.done(), std::size_t(1));
}

UnsavedChanges UnsavedChanges::of(MyDocument &document)
{
    UnsavedChanges unsaved;
    const EditHistory &history = document.history();
    const std::optional<Range> range = unsavedSteps(history, document.marks());
    unsaved.isKnown = range.has_value();
    if (!range)
        return unsaved;
    unsaved.changes = range->second - range->first;
    std::array<std::unordered_set<RowRecordPtr>, 3> rows;
    QSet<QString> sequences;
    for (std::size_t i = range->first; i < range->second; ++i) {
        const EditStep &step = history.steps()[i];
        const auto add = [&rows](Tab tab, const RowList &list) {
            rows[std::size_t(tab)].insert(list.begin(), list.end());
        };
        add(step.tab, step.rows.changedRows());
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
            add(tab, step.rows.addedRows(document.rowView(tab)));
            add(tab, step.rows.removedRows(document.rowView(tab)));
        }
        for (const QString &uuid : step.marks.sequences)
            sequences.insert(uuid);
    }
    for (std::size_t tab = 0; tab < rows.size(); ++tab)
        unsaved.rows[tab] = rows[tab].size();
    unsaved.sequences = std::size_t(sequences.size());
    return unsaved;
}

QString UnsavedChanges::text() const
{
    if (!isKnown || changes == 0)
        return QString();
    QStringList parts;
    const auto add = [&](Tab tab, const char *singular, const char *plural) {
        if (const std::size_t count = rows[std::size_t(tab)])
            parts.append(counted(count, singular, plural));
    };
    add(Tab::Markers, "marker", "markers");
    add(Tab::Effects, "effect", "effects");
    add(Tab::Media, "media file", "media files");
    QString text = counted(changes, "change", "changes");
    if (!parts.isEmpty()) {
        const QString last = parts.takeLast();
        text += QStringLiteral(" to ") +
                (parts.isEmpty() ? last : parts.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last);
    }
    if (sequences > 0)
        text += QStringLiteral(" in ") + counted(sequences, "sequence", "sequences");
    return text;
}

} // namespace vantrell

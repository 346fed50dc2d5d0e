#include "document/UnsavedChanges.h"

#include "document/MyDocument.h"

#include <QCoreApplication>
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

struct ChangesText {
    Q_DECLARE_TR_FUNCTIONS(UnsavedChanges)
};

QString counted(std::size_t count, const QString &one, const QString &several)
{
    return count == 1 ? one : several.arg(QLocale(QLocale::English).toString(qulonglong(count)));
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
    const auto add = [&](Tab tab, const QString &one, const QString &several) {
        if (const std::size_t count = rows[std::size_t(tab)])
            parts.append(counted(count, one, several));
    };
    add(Tab::Markers, ChangesText::tr("1 marker"), ChangesText::tr("%1 markers"));
    add(Tab::Effects, ChangesText::tr("1 effect"), ChangesText::tr("%1 effects"));
    add(Tab::Media, ChangesText::tr("1 media file"), ChangesText::tr("%1 media files"));
    QString text = counted(changes, ChangesText::tr("1 change"), ChangesText::tr("%1 changes"));
    if (!parts.isEmpty()) {
        const QString last = parts.takeLast();
        const QString list =
            parts.isEmpty()
                ? last
                : ChangesText::tr("%1 and %2", "rows").arg(parts.join(QStringLiteral(", ")), last);
        text = ChangesText::tr("%1 to %2", "changes to rows").arg(text, list);
    }
    if (sequences > 0)
        text = ChangesText::tr("%1 in %2", "changes in sequences")
                   .arg(text,
                        counted(sequences, ChangesText::tr("1 sequence"), ChangesText::tr("%1 sequences")));
    return text;
}

} // namespace vantrell

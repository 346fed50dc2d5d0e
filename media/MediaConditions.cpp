#include "media/MediaConditions.h"

#include "media/MediaFile.h"
#include "media/MediaKeys.h"

#include <QSet>
#include <QStringMatcher>

namespace vantrell
{

namespace
{

QString composed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
}

/// Whether the files of the choice have uses, by their index.
std::vector<bool> usedFiles(const MediaUses &uses, const std::vector<int> &sequences)
{
    std::vector<bool> used;
    for (const MediaUses::File &file : uses.files({sequences, 0}))
        used.push_back(file.uses > 0);
    return used;
}

} // namespace

std::function<bool(const RowRecord &)> mediaCondition(const MediaConditions &conditions,
                                                      const std::shared_ptr<const MediaUses> &uses)
{
    if (conditions.search.isEmpty() && !conditions.missingOnly && !conditions.needsUses())
        return {};
    const std::vector<bool> used =
        conditions.needsUses() ? usedFiles(*uses, conditions.sequences) : std::vector<bool>();
    return
        [conditions, uses, used,
         search = QStringMatcher(composed(conditions.search), Qt::CaseInsensitive)](const RowRecord &record) {
            if (conditions.missingOnly && !record.get(MediaKey::missing))
                return false;
            if (conditions.needsUses()) {
                const std::optional<std::size_t> file = uses->indexOf(record.get(MediaKey::rawpath));
                if (!file || used[*file] == conditions.unusedOnly)
                    return false;
            }
            if (conditions.search.isEmpty())
                return true;
            const QString path =
                MediaFile::joinedPath(record.get(MediaKey::directory), record.get(MediaKey::filename));
            return search.indexIn(composed(path)) >= 0;
        };
}

} // namespace vantrell

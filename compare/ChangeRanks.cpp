#include "compare/ChangeRanks.h"

#include "rows/TextRanks.h"

#include <QHash>

namespace vantrell
{

ChangeRanks ChangeRanks::of(const CutComparison &comparison)
{
    ChangeRanks result;
    result.names.reserve(comparison.changes.size());
    result.files.reserve(comparison.changes.size());
    TextRanks names;
    TextRanks files;
    QHash<QString, std::uint32_t> numbers; // by path
    for (const EventChange &change : comparison.changes) {
        result.names.push_back(names.add(comparison.event(change).name));
        const QString path = comparison.file(change);
        const auto known = numbers.constFind(path);
        result.files.push_back(known != numbers.constEnd()
                                   ? *known
                                   : *numbers.insert(path, files.add(path.section(QLatin1Char('/'), -1))));
    }
    const auto replaceByRanks = [](std::vector<std::uint32_t> &texts, const TextRanks &ranks) {
        const std::vector<std::uint32_t> byNumber = ranks.ranks();
        for (std::uint32_t &text : texts)
            text = byNumber[text];
    };
    replaceByRanks(result.names, names);
    replaceByRanks(result.files, files);
    return result;
}

} // namespace vantrell

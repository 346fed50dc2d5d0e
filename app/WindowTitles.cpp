#include "app/WindowTitles.h"

#include <algorithm>
#include <vector>

namespace vantrell
{

namespace
{

struct Place {
    QString name;
    QStringList folders;

    explicit Place(const QString &path)
        : folders(path.split(QLatin1Char('/'), Qt::SkipEmptyParts))
    {
        if (!folders.isEmpty())
            name = folders.takeLast();
    }
    QStringList last(qsizetype count) const
    {
        return folders.sliced(std::max<qsizetype>(folders.size() - count, 0));
    }
    friend bool operator==(const Place &, const Place &) = default;
};

QString folderThatTellsApart(const Place &place, const std::vector<Place> &places)
{
    const auto isAlike = [&](const Place &other, qsizetype count) {
        return other.name == place.name && !(other == place) && other.last(count) == place.last(count);
    };
    const auto isAnyAlike = [&](qsizetype count) {
        return std::any_of(places.begin(), places.end(),
                           [&](const Place &other) { return isAlike(other, count); });
    };
    qsizetype count = 0;
    while (count < place.folders.size() && isAnyAlike(count))
        ++count;
    return place.last(count).join(QLatin1Char('/'));
}

} // namespace

QStringList foldersThatTellApart(const QStringList &paths)
{
    const std::vector<Place> places(paths.begin(), paths.end());
    QStringList folders;
    for (const Place &place : places)
        folders.append(folderThatTellsApart(place, places));
    return folders;
}

} // namespace vantrell

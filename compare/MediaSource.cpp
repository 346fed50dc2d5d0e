#include "compare/MediaSource.h"

#include <algorithm>

namespace vantrell
{

bool MediaSource::isSameAs(const MediaSource &other) const
{
    if (still != other.still)
        return false;
    if (!path.isEmpty() && !other.path.isEmpty())
        return path == other.path;
    if (!id.isEmpty() && !other.id.isEmpty())
        return id == other.id;
    return !name.isEmpty() && name == other.name;
}

SourceIndex::SourceIndex(const std::vector<MediaSource> &sources)
    : m_sources(sources)
{
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const MediaSource &source = sources[i];
        if (!source.path.isEmpty())
            m_byPath[source.path].push_back(int(i));
        for (Ids *ids : {&m_all, &m_pathless}) {
            if (ids == &m_pathless && !source.path.isEmpty())
                continue;
            if (!source.id.isEmpty())
                ids->byId[source.id].push_back(int(i));
            if (!source.name.isEmpty())
                ids->byName[source.name].push_back(int(i));
        }
    }
}

std::vector<int> SourceIndex::sameAs(const MediaSource &source) const
{
    std::vector<int> found;
    const auto addFrom = [&](const QHash<QString, std::vector<int>> &index, const QString &key) {
        const auto at = index.constFind(key);
        if (key.isEmpty() || at == index.constEnd())
            return;
        for (const int i : *at) {
            if (m_sources[std::size_t(i)].isSameAs(source))
                found.push_back(i);
        }
    };
    addFrom(m_byPath, source.path);
    const Ids &ids = source.path.isEmpty() ? m_all : m_pathless;
    addFrom(ids.byId, source.id);
    addFrom(ids.byName, source.name);
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

} // namespace vantrell

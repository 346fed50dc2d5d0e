#pragma once

#include <QHash>
#include <QString>

#include <vector>

namespace vantrell
{

/// What an event shows or plays: a file, a nested sequence, a generator. Each part is null when there is
/// none.
struct MediaSource {
    QString path; ///< of the file, decoded
    QString id;
    QString name;
    QString still; ///< the frame of a freeze frame, which is another picture than the running file

    /// The path, else the name; null without either.
    QString label() const { return path.isEmpty() ? name : path; }

    /// Their freeze frames are equal, and their paths; where either has none their ids; where either has none
    /// their names.
    bool isSameAs(const MediaSource &other) const;
};

/// Finds the sources of one list that are the same as that of another, looking only at those
/// that share a path, an id or a name. The list outlives it. Any thread.
class SourceIndex
{
public:
    explicit SourceIndex(const std::vector<MediaSource> &sources);

    /// The indexes of the sources that are the same, ascending.
    std::vector<int> sameAs(const MediaSource &source) const;

private:
    const std::vector<MediaSource> &m_sources;
    struct Ids {
        QHash<QString, std::vector<int>> byId;
        QHash<QString, std::vector<int>> byName;
    };

    QHash<QString, std::vector<int>> m_byPath;
    Ids m_all;
    Ids m_pathless;
};

} // namespace vantrell

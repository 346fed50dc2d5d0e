#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace vantrell
{

class UserDefaults;

/// A folder as projects name it and the folder that it is on this machine.
struct PathMapping {
    QString from;
    QString to;

    friend bool operator==(const PathMapping &, const PathMapping &) = default;
};

/// Where the files of a project are on this machine. A mapping changes where a file is looked for, never the
/// project. A value; any thread.
class PathMappings
{
public:
    /// The key of the user defaults that holds them.
    static inline const QString defaultsKey = QStringLiteral("mediaPathMappings");

    /// Adds a folder, or another place for one that was added before. `from` is a path, a path with a drive
    /// letter, the name of a server and a share ("//server/share", with either kind of slash), or a URL; the
    /// host "localhost" counts as none. Paths with drive letters or servers are compared without regard to
    /// case, all without regard to the Unicode form. False, and nothing is added, when either text is empty
    /// or `to` is not absolute.
    bool add(const QString &from, const QString &to);

    /// "FROM=TO", split at the first equals sign; a relative TO is taken from the working folder. Nothing
    /// without an equals sign or with an empty side.
    static std::optional<PathMapping> parse(const QString &text);

    bool isEmpty() const { return m_rules.empty(); }
    /// In the order in which they were added.
    std::vector<PathMapping> list() const;

    /// Where the file is: below the `to` of the longest `from` that holds it, the path itself without one. \a
    /// url is what the project says and \a path that URL's path.
    QString placeOf(const QString &url, const QString &path) const;

    /// What the user defaults hold; none without any.
    static PathMappings stored(const UserDefaults &defaults);
    void store(UserDefaults &defaults) const;

private:
    /// A host and a folder on it, in the form in which they are compared.
    struct Location {
        QString scheme; ///< empty for any
        QString host;   ///< empty for any
        QString path;   ///< without a slash at its end, the root empty
        bool ignoresCase = false;
    };
    struct Rule {
        PathMapping mapping;
        Location from;
        qsizetype components = 0; ///< of the path
    };

    static Location locationOf(const QString &text);
    static Location locationOfUrl(const QString &url, const QString &path);
    static bool holds(const Location &folder, const Location &file);

    std::vector<Rule> m_rules;
};

/// The mapping that leads from a file's path in the project to the one where it was found: both without the
/// components at their ends that are alike. Nothing when the file names differ or the paths do not.
std::optional<PathMapping> suggestedMapping(const QString &path, const QString &foundPath);

/// The mappings that lead from the paths to where the files were found, those that explain most files first.
std::vector<PathMapping> suggestedMappings(const std::vector<std::pair<QString, QString>> &found);

} // namespace vantrell

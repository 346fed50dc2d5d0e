#include "media/PathMapping.h"

#include "support/settings/UserDefaults.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <QVariant>

#include <algorithm>
#include <map>

namespace vantrell
{

namespace
{

const QString fromKey = QStringLiteral("from");
const QString toKey = QStringLiteral("to");
const QString localHost = QStringLiteral("localhost");

QString withoutEndSlashes(QString path)
{
    while (path.endsWith(u'/'))
        path.chop(1);
    return path;
}

bool isLatinLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// Whether the text begins with a drive letter, as in "C:" and "C:\Media".
bool hasDriveLetter(QStringView text)
{
    return text.size() >= 2 && isLatinLetter(text[0]) && text[1] == u':' &&
           (text.size() == 2 || text[2] == u'/' || text[2] == u'\\');
}

/// The end of the first \a count components of an absolute path.
qsizetype endOfComponents(const QString &path, qsizetype count)
{
    qsizetype end = 0;
    for (; count > 0 && end >= 0; --count)
        end = path.indexOf(u'/', end + 1);
    return end < 0 ? path.size() : end;
}

bool areAlike(QStringView a, QStringView b)
{
    return a == b || a.toString().normalized(QString::NormalizationForm_C) ==
                         b.toString().normalized(QString::NormalizationForm_C);
}

} // namespace

PathMappings::Location PathMappings::locationOf(const QString &text)
{
    const qsizetype schemeEnd = text.indexOf(QStringLiteral("://"));
    if (schemeEnd > 0) {
        const qsizetype pathStart = text.indexOf(u'/', schemeEnd + 3);
        const QString path = pathStart < 0 ? QString() : text.sliced(pathStart);
        return locationOfUrl(text, QUrl::fromPercentEncoding(path.toUtf8()));
    }
    QString path = text;
    const bool isWindows = hasDriveLetter(text) || text.startsWith(QStringLiteral("\\\\"));
    if (isWindows)
        path.replace(u'\\', u'/');
    if (hasDriveLetter(path))
        path.prepend(u'/');
    return locationOfUrl(QString(), path);
}

PathMappings::Location PathMappings::locationOfUrl(const QString &url, const QString &path)
{
    Location location;
    const qsizetype schemeEnd = url.indexOf(QStringLiteral("://"));
    if (schemeEnd > 0) {
        location.scheme = url.first(schemeEnd).toLower();
        const qsizetype start = schemeEnd + 3;
        const qsizetype end = url.indexOf(u'/', start);
        location.host = url.sliced(start, (end < 0 ? url.size() : end) - start).toLower();
        if (location.host == localHost)
            location.host.clear();
    }
    QString folder = path;
    if (location.host.isEmpty() && folder.startsWith(QStringLiteral("//"))) {
        const qsizetype end = folder.indexOf(u'/', 2);
        location.host = folder.sliced(2, (end < 0 ? folder.size() : end) - 2).toLower();
        folder = end < 0 ? QString() : folder.sliced(end);
    }
    location.path = withoutEndSlashes(folder).normalized(QString::NormalizationForm_C);
    location.ignoresCase = !location.host.isEmpty() || hasDriveLetter(QStringView(location.path).mid(1));
    if (location.scheme == QStringLiteral("file"))
        location.scheme.clear();
    return location;
}

bool PathMappings::holds(const Location &folder, const Location &file)
{
    const Qt::CaseSensitivity sensitivity = folder.ignoresCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
    return (folder.scheme.isEmpty() || folder.scheme == file.scheme) &&
           (folder.host.isEmpty() || folder.host == file.host) &&
           file.path.startsWith(folder.path, sensitivity) &&
           (file.path.size() == folder.path.size() || file.path.at(folder.path.size()) == u'/');
}

bool PathMappings::add(const QString &from, const QString &to)
{
    if (from.isEmpty() || !to.startsWith(u'/'))
        return false;
    Rule rule{{from, to}, locationOf(from), 0};
    rule.components =
        rule.from.path.count(u'/') + (rule.from.path.isEmpty() || rule.from.path[0] == u'/' ? 0 : 1);
    const auto same = std::find_if(m_rules.begin(), m_rules.end(),
                                   [&from](const Rule &known) { return known.mapping.from == from; });
    if (same != m_rules.end())
        *same = std::move(rule);
    else
        m_rules.push_back(std::move(rule));
    return true;
}

std::optional<PathMapping> PathMappings::parse(const QString &text)
{
    const qsizetype equals = text.indexOf(u'=');
    if (equals <= 0 || equals + 1 == text.size())
        return std::nullopt;
    return PathMapping{text.first(equals),
                       QDir::cleanPath(QFileInfo(text.sliced(equals + 1)).absoluteFilePath())};
}

std::vector<PathMapping> PathMappings::list() const
{
    std::vector<PathMapping> mappings;
    for (const Rule &rule : m_rules)
        mappings.push_back(rule.mapping);
    return mappings;
}

QString PathMappings::placeOf(const QString &url, const QString &path) const
{
    if (m_rules.empty() || path.isEmpty())
        return path;
    const Location file = locationOfUrl(url, path);
    const Rule *best = nullptr;
    for (const Rule &rule : m_rules) {
        const bool isMoreExact = !best || rule.from.path.size() > best->from.path.size() ||
                                 (rule.from.path.size() == best->from.path.size() &&
                                  rule.from.host.size() > best->from.host.size());
        if (isMoreExact && holds(rule.from, file))
            best = &rule;
    }
    if (!best)
        return path;
    // The rest is taken from the path as it stands: the disk may have another Unicode form.
    const bool hasServer = path.startsWith(QStringLiteral("//"));
    const QString local = hasServer ? path.sliced(std::max<qsizetype>(path.indexOf(u'/', 2), 0)) : path;
    const QString rest = local.sliced(endOfComponents(local, best->components));
    const QString target = withoutEndSlashes(best->mapping.to);
    return target.isEmpty() && rest.isEmpty() ? QStringLiteral("/") : target + rest;
}

PathMappings PathMappings::stored(const UserDefaults &defaults)
{
    PathMappings mappings;
    for (const QVariant &entry : defaults.value(defaultsKey).toList()) {
        const QVariantMap map = entry.toMap();
        mappings.add(map.value(fromKey).toString(), map.value(toKey).toString());
    }
    return mappings;
}

void PathMappings::store(UserDefaults &defaults) const
{
    QVariantList entries;
    for (const Rule &rule : m_rules)
        entries.append(QVariantMap{{fromKey, rule.mapping.from}, {toKey, rule.mapping.to}});
    defaults.setValue(defaultsKey, entries.isEmpty() ? QVariant() : QVariant(entries));
}

std::optional<PathMapping> suggestedMapping(const QString &path, const QString &foundPath)
{
    QStringView from(path);
    QStringView to(foundPath);
    qsizetype alike = 0;
    for (;;) {
        const qsizetype fromSlash = from.lastIndexOf(u'/');
        const qsizetype toSlash = to.lastIndexOf(u'/');
        if (fromSlash < 0 || toSlash < 0 || !areAlike(from.sliced(fromSlash + 1), to.sliced(toSlash + 1)))
            break;
        from = from.first(fromSlash);
        to = to.first(toSlash);
        ++alike;
    }
    if (alike == 0 || from == to)
        return std::nullopt;
    const auto folder = [](QStringView rest) {
        return rest.isEmpty() ? QStringLiteral("/") : rest.toString();
    };
    return PathMapping{folder(from), folder(to)};
}

std::vector<PathMapping> suggestedMappings(const std::vector<std::pair<QString, QString>> &found)
{
    std::map<std::pair<QString, QString>, std::size_t> indexes;
    std::vector<std::pair<PathMapping, std::size_t>> counted;
    for (const auto &[path, foundPath] : found) {
        const std::optional<PathMapping> mapping = suggestedMapping(path, foundPath);
        if (!mapping)
            continue;
        const auto [at, isNew] = indexes.try_emplace(std::pair(mapping->from, mapping->to), counted.size());
        if (isNew)
            counted.emplace_back(*mapping, 0);
        ++counted[at->second].second;
    }
    std::stable_sort(counted.begin(), counted.end(),
                     [](const auto &a, const auto &b) { return a.second > b.second; });
    std::vector<PathMapping> mappings;
    mappings.reserve(counted.size());
    for (auto &entry : counted)
        mappings.push_back(std::move(entry.first));
    return mappings;
}

} // namespace vantrell

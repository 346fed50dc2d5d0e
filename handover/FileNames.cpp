#include "handover/FileNames.h"

#include "xml/QVXMLParser.h"

#include <QUrl>

#include <algorithm>

namespace vantrell::FileNames
{

namespace
{

QString composed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
}

QString decoded(const QString &name)
{
    return name.contains(u'%') ? QUrl::fromPercentEncoding(name.toUtf8()) : name;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

} // namespace

QString relaxed(const QString &name)
{
    const QString plain = decoded(name);
    return isAscii(plain) ? plain.toLower() : composed(composed(plain).toCaseFolded());
}

NameMatch match(const QString &wanted, const QString &found)
{
    if (wanted == found)
        return NameMatch::Same;
    const QString a = composed(wanted);
    const QString b = composed(found);
    if (a == b)
        return NameMatch::UnicodeForm;
    if (composed(a.toCaseFolded()) == composed(b.toCaseFolded()))
        return NameMatch::Case;
    return relaxed(wanted) == relaxed(found) ? NameMatch::Escapes : NameMatch::None;
}

QString textOf(NameMatch match)
{
    switch (match) {
    case NameMatch::Same:
        return QStringLiteral("same name");
    case NameMatch::UnicodeForm:
        return QStringLiteral("other Unicode form");
    case NameMatch::Case:
        return QStringLiteral("other case");
    case NameMatch::Escapes:
        return QStringLiteral("other escapes");
    case NameMatch::None:
        break;
    }
    return QString();
}

QString pathOfReference(const QString &url)
{
    if (const auto path = QVXMLParser::filenameFromPathURLString(url))
        return *path;
    QString text = url;
    if (const qsizetype scheme = text.indexOf(QStringLiteral("://")); scheme >= 0) {
        const qsizetype path = text.indexOf(u'/', scheme + 3);
        text = path < 0 ? QString() : decoded(text.sliced(path));
    }
    return text.contains(u'/') ? text : text.replace(u'\\', u'/');
}

QString urlOfPath(const QString &path, const QString &formerUrl)
{
    const bool hasNoHost = formerUrl.startsWith(QStringLiteral("file:///"));
    const QString prefix = hasNoHost ? QStringLiteral("file://") : QStringLiteral("file://localhost");
    return prefix + QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}

} // namespace vantrell::FileNames

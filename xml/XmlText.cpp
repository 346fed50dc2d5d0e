#include "xml/XmlText.h"

#include "support/log/QVLog.h"

#include <algorithm>

namespace vantrell::XmlText
{

namespace
{

bool isAllowed(char32_t c)
{
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
           (c >= 0x10000 && c <= 0x10FFFF);
}

int hexDigit(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    if (u >= u'a' && u <= u'f')
        return u - u'a' + 10;
    if (u >= u'A' && u <= u'F')
        return u - u'A' + 10;
    return -1;
}

bool isUrlCharacter(char c)
{
    constexpr std::string_view others = "-._~:/?#[]@!$&'()*+,;=";
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           others.find(c) != std::string_view::npos;
}

bool isScheme(QStringView text)
{
    return !text.isEmpty() && text.front().isLetter() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return c.isLetterOrNumber() || c == QLatin1Char('+') || c == QLatin1Char('-') ||
               c == QLatin1Char('.');
    });
}

/// The index of the character, or the length when it does not occur.
qsizetype firstOf(QStringView text, char16_t c)
{
    const qsizetype at = text.indexOf(QChar(c));
    return at < 0 ? text.size() : at;
}

} // namespace

QString fromUtf8(std::string_view text)
{
    return text.empty() ? QStringLiteral("") : QString::fromUtf8(text.data(), qsizetype(text.size()));
}

QByteArray toUtf8(const QString &text)
{
    QString kept;
    bool dropped = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        const bool pair = unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const char32_t c = pair ? QChar::surrogateToUcs4(unit, text.at(i + 1)) : unit.unicode();
        const qsizetype length = pair ? 2 : 1;
        if (isAllowed(c)) {
            if (dropped)
                kept.append(QStringView(text).mid(i, length));
        } else {
            if (!dropped)
                kept = text.first(i);
            dropped = true;
            QVLog::appendLog(u"Dropped a character that XML forbids: %i", int(c));
        }
        i += length - 1;
    }
    return (dropped ? kept : text).toUtf8();
}

QString removingPercentEscapes(const QString &text)
{
    if (!text.contains(QLatin1Char('%')))
        return text;
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('%')) {
            plain.append(text.at(i));
            continue;
        }
        if (i + 2 >= text.size())
            return QString();
        const int high = hexDigit(text.at(i + 1));
        const int low = hexDigit(text.at(i + 2));
        if (high < 0 || low < 0 || high > 7)
            return QString();
        plain.append(QChar(char16_t(high * 16 + low)));
        i += 2;
    }
    return plain;
}

QString pathOfUrl(const QString &url)
{
    if (url.isNull())
        return QString();
    for (qsizetype i = 0; i < url.size(); ++i) {
        const char16_t c = url.at(i).unicode();
        if (c == u'%') {
            if (i + 2 >= url.size() || hexDigit(url.at(i + 1)) < 0 || hexDigit(url.at(i + 2)) < 0)
                return QString();
        } else if (c >= 0x80 || !isUrlCharacter(char(c))) {
            return QString();
        }
    }
    QStringView path(url);
    path = path.first(std::min(firstOf(path, u'?'), firstOf(path, u'#')));
    const qsizetype colon = firstOf(path, u':');
    if (colon < path.size() && isScheme(path.first(colon)))
        path = path.sliced(colon + 1);
    if (path.startsWith(u"//")) {
        path = path.sliced(2);
        path = path.sliced(firstOf(path, u'/'));
    }
    QString decoded = QString::fromUtf8(QByteArray::fromPercentEncoding(path.toLatin1()));
    if (decoded.size() > 1 && decoded.endsWith(QLatin1Char('/')))
        decoded.chop(1);
    return decoded.isNull() ? QStringLiteral("") : decoded;
}

} // namespace vantrell::XmlText

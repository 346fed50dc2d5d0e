#include "interchange/MarkerListText.h"

#include <QtEndian>

namespace vantrell::MarkerListText
{

QString fromUtf16(const QByteArray &bytes)
{
    if (bytes.size() < 2 || bytes.size() % 2 != 0)
        return QString();
    const bool marked = bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff");
    const bool bigEndian = bytes.startsWith("\xfe\xff");
    if (!marked && bytes.at(1) != '\0')
        return QString();

    const qsizetype skipped = marked ? 2 : 0;
    QString text((bytes.size() - skipped) / 2, Qt::Uninitialized);
    const char *source = bytes.constData() + skipped;
    if (bigEndian)
        qFromBigEndian<char16_t>(source, text.size(), text.data());
    else
        qFromLittleEndian<char16_t>(source, text.size(), text.data());
    return text;
}

QString fromUtf8(const QByteArray &bytes)
{
    QByteArrayView text(bytes);
    if (text.startsWith("\xef\xbb\xbf"))
        text = text.sliced(3);
    if (!text.isValidUtf8())
        return QString();
    return text.isEmpty() ? QStringLiteral("") : QString::fromUtf8(text);
}

} // namespace vantrell::MarkerListText

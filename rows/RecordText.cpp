#include "rows/RecordText.h"

namespace vantrell
{

namespace
{

struct ToText {
    QString operator()(std::int64_t integer) const { return QString::number(integer); }
    QString operator()(double number) const { return QString::number(number); }
    QString operator()(bool flag) const { return flag ? QStringLiteral("1") : QStringLiteral("0"); }
    QString operator()(const QString &text) const { return text; }
    QString operator()(const QDateTime &date) const { return isoText(date); }
    QString operator()(XmlNode node) const { return node.locationPath(); }
};

} // namespace

QString isoText(const QDateTime &date)
{
    return date.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")) + QLatin1Char('Z');
}

QString plainText(const RecordValue &value)
{
    return std::visit(ToText(), value);
}

} // namespace vantrell

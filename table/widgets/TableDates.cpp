#include "table/widgets/TableDates.h"

#include "support/settings/UserDefaults.h"

#include <QLocale>

namespace vantrell
{

TableDates::Format TableDates::storedFormat(const UserDefaults &defaults)
{
    const QString stored = defaults.string(formatKey);
    for (const Format format : {Format::Iso, Format::Named}) {
        if (stored == nameOf(format))
            return format;
    }
    return Format::System;
}

QString TableDates::nameOf(Format format)
{
    switch (format) {
    case Format::Iso:
        return QStringLiteral("iso");
    case Format::Named:
        return QStringLiteral("named");
    case Format::System:
        break;
    }
    return QString();
}

QString TableDates::text(const QDateTime &date, Format format)
{
    const QDateTime local = date.toLocalTime();
    switch (format) {
    case Format::Iso:
        return local.toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    case Format::Named:
        return QLocale().toString(local, QStringLiteral("d MMMM yyyy HH:mm"));
    case Format::System:
        break;
    }
    return QLocale().toString(local, QLocale::ShortFormat);
}

} // namespace vantrell

#pragma once

#include <QDateTime>
#include <QString>

namespace vantrell
{

class UserDefaults;

/// How tables show dates. Reports, lists and the command line have forms of their own.
namespace TableDates
{

/// The user default with the format: "iso" or "named"; anything else is the system's.
inline const QString formatKey = QStringLiteral("tableDateFormat");

enum class Format {
    System, ///< short, as the system's settings have it
    Iso,    ///< "2026-11-22 15:04"
    Named,  ///< "22 November 2026 15:04"
};

Format storedFormat(const UserDefaults &defaults);
/// The value of the user default; empty for the system's format.
QString nameOf(Format format);

/// The date in the local time zone, to the minute.
QString text(const QDateTime &date, Format format);

} // namespace TableDates

} // namespace vantrell

#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace vantrell
{

/// What the program knows of the installed Final Cut Pro, and the text utilities of the exchange with it.
/// Stateless; any thread.
class QVAppleEvents
{
public:
    QVAppleEvents() = delete;

    /// A new random UUID: 36 characters, upper case.
    static QString generateUUID();

    /// The version of the installed Final Cut Pro, null when its property list has none; "7.0" without a
    /// property list to read.
    static QString finalCutProVersionString();
    /// The integer value of the version's first character; 7 without a version.
    static std::int64_t finalCutProMajorVersion();
    /// The highest version of the interchange format that the installed Final Cut Pro reads.
    static std::int64_t maximumXMEMLVersion();

    // The same for a given version; null for none.
    static std::int64_t majorVersionOf(const QString &version);
    static std::int64_t maximumXMEMLVersionOf(const QString &version);

    /// The text with each UTF-16 unit from 160 on and each carriage return as a decimal reference. Markup
    /// stays as it is.
    static QString escapeCharactersInXMLString(const QString &text);

    /// The bytes without one zero at their end.
    static QByteArray formatData(const QByteArray &data);
};

} // namespace vantrell

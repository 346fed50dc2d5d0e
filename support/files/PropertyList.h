#pragma once

#include "support/files/Result.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

/// Reading and writing property lists, as XML and in the binary form. Any thread. A list may nest to
/// maximumDepth and hold a million values; what goes beyond, and what is damaged, is a Failure.
///
/// A list is a QVariant: a boolean, a whole number (qint64 when it was read), a double, a QString, a
/// QDateTime in UTC, a QByteArray, a QVariantList or a QVariantMap. Dates are whole seconds, from 1932 to
/// 2069 (others become the nearest that can be written). Characters that XML forbids and halves of surrogate
/// pairs are dropped from texts and keys when they are written, in both forms. Members of a dictionary or
/// array that are invalid, or of another type, are left out.
namespace vantrell::PropertyList
{

enum class Format { Xml, Binary };
/// How deep arrays and dictionaries may stand in one another.
constexpr int maximumDepth = 500;

/// The list in these bytes, whichever form they are in.
Result<QVariant> fromBytes(const QByteArray &bytes);
Result<QVariant> fromFile(const QString &path);
Result<QByteArray> toBytes(const QVariant &value, Format format);
/// Replaces the file's content, or makes the file, in one step.
Result<void> toFile(const QVariant &value, const QString &path, Format format = Format::Xml);

/// Whether it is a boolean, a whole number or a number.
bool isNumber(const QVariant &value);
/// A number other than 0; a text that starts, after white space, a sign and zeros, with a digit or with one
/// of "YyTt". False for all else.
bool boolean(const QVariant &value);
/// The number without its decimals, within 64 bits; a text as integerValue() reads it. 0 for all else.
qint64 integer(const QVariant &value);
/// The text; a number as text ("1" and "0" for booleans). A null string for all else.
QString text(const QVariant &value);

} // namespace vantrell::PropertyList

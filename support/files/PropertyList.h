#pragma once

#include "support/files/PropertyListValue.h"
#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

/// Reading and writing property lists, as XML and in the binary form. Any thread. A list may nest to
/// maximumDepth and hold a million values; what goes beyond, and what is damaged, is a Failure.
///
/// Dates are whole seconds, from 1932 to 2069 (others become the nearest that can be written).
/// Characters that XML forbids and halves of surrogate pairs are dropped from texts and keys when
/// they are written, in both forms. Members of a dictionary or array that are nothing are left out.
namespace vantrell::PropertyList
{

enum class Format { Xml, Binary };

/// How deep arrays and dictionaries may stand in one another.
constexpr int maximumDepth = 500;

/// The list in these bytes, whichever form they are in.
Result<PropertyListValue> fromBytes(const QByteArray &bytes);
Result<PropertyListValue> fromFile(const QString &path);

Result<QByteArray> toBytes(const PropertyListValue &value, Format format);

/// Replaces the file's content, or makes the file, in one step.
Result<void> toFile(const PropertyListValue &value, const QString &path, Format format = Format::Xml);

} // namespace vantrell::PropertyList

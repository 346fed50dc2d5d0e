#pragma once

#include "support/files/Result.h"
#include "xml/XmlDocument.h"

#include <QString>

#include <cstdint>

namespace vantrell::MarkerElement
{

/// A new marker's element, which belongs to the document and stands outside its tree, in that colour of
/// MarkerColors::table(), with the points in frames, of which the low 32 bits count. The failure, for the
/// user: the name or comment is no well-formed XML, or holds markup of its own.
Result<XmlNode> make(XmlDocument &document, const QString &name, const QString &comment, int color,
                     std::int64_t inPoint, std::int64_t outPoint);

/// The same with the name and comment as texts, whatever characters they hold; those that XML forbids are
/// dropped.
Result<XmlNode> makeWithTexts(XmlDocument &document, const QString &name, const QString &comment, int color,
                              std::int64_t inPoint, std::int64_t outPoint);

} // namespace vantrell::MarkerElement

#pragma once

#include <QByteArray>

namespace vantrell::XmlReferences
{

/// The XML with one reference wherever two neighbouring character references stand for the two halves of a
/// surrogate pair, so that a parser takes them for the character that they mean. CDATA sections, comments
/// and processing instructions stay as they are, and so does all else. For encodings that have ASCII in
/// them. Bytes without such a pair are given back without a copy, others that nobody shares are changed in
/// place. Linear; any thread.
QByteArray joinedSurrogates(QByteArray xml);

} // namespace vantrell::XmlReferences

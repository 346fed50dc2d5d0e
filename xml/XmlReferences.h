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

/// The XML with the character itself wherever a reference, or two for a surrogate pair, stand for one of
/// number 160 or beyond. What stays as it is, copies and cost are those of joinedSurrogates(). For UTF-8.
QByteArray asCharacters(QByteArray utf8);

} // namespace vantrell::XmlReferences

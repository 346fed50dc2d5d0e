#pragma once

#include <QByteArray>

namespace vantrell::XmlReferences
{

/// Joins adjacent character references that form a surrogate pair into one reference, so that a parser reads
/// the character that they mean. CDATA sections, comments and processing instructions are left alone. For
/// supersets of ASCII. Bytes without such a pair are returned without a copy; unshared bytes are edited in
/// place. Linear; any thread.
QByteArray joinedSurrogates(QByteArray xml);

/// Replaces references to characters from 160 on, surrogate pairs included, by the characters. Exceptions,
/// copies and cost as for joinedSurrogates(). For UTF-8.
QByteArray asCharacters(QByteArray utf8);

} // namespace vantrell::XmlReferences

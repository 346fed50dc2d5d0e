#pragma once

#include <QByteArray>

namespace vantrell
{

/// XML (UTF-8 or another superset of ASCII) whose writer made a reference of each UTF-16 unit: two
/// character references that stand side by side and form a surrogate pair become one reference to the
/// character that they stand for. A half that stands alone is dropped, since XML has no such character.
/// Comments, CDATA sections and processing instructions, which hold no references, stay as they are. Text
/// without such references is given back without a copy. Any thread.
QByteArray joinSurrogateReferences(const QByteArray &xml);

} // namespace vantrell

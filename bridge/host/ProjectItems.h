#pragma once

#include "xml/XmlDocument.h"

#include <QByteArray>
#include <QString>

namespace vantrell::ProjectItems
{

/// The bin, clip or sequence with that UUID, else the one with that id, which may be given as it is written
/// or with its percent escapes undone. What lies directly in the project or in its bins comes before
/// sequences that lie in others. Null when there is none.
XmlNode find(XmlNode root, const QString &identifier);

/// The project's bins and sequences, each with its UUID, id and name as far as it has them, as an xmeml in
/// UTF-8. They lie in one another as they do in the project.
QByteArray tableOfContents(XmlNode root);

} // namespace vantrell::ProjectItems

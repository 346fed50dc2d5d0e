#pragma once

#include "xml/XmlDocument.h"

#include <QByteArray>
#include <QString>

namespace vantrell::ProjectItems
{

/// The bin, clip or sequence with that UUID, else the one with that id, as written or percent-decoded. Items
/// directly in the project or in its bins take precedence over nested sequences. Null without one.
XmlNode find(XmlNode root, const QString &identifier);

/// The project's bins and sequences with their UUIDs, ids and names, nested as in the project, as an xmeml
/// document in UTF-8.
QByteArray tableOfContents(XmlNode root);

} // namespace vantrell::ProjectItems

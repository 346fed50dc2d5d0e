#pragma once

#include "tests/support/TemporaryHome.h"

namespace vantrell
{

/// Writes the Info.plist of the application bundle at a path below the home, such as "apps/F.app": its
/// identifier, and other keys with their values as XML.
inline void addBundle(const TemporaryHome &home, const QString &bundle, const QByteArray &identifier,
                      const QByteArray &otherKeys = {})
{
    home.addFile(bundle + QStringLiteral("/Contents/Info.plist"),
                 "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>" + identifier +
                     "</string>" + otherKeys + "</dict></plist>");
}

} // namespace vantrell

#pragma once

#include "support/files/Result.h"

#include <QString>

namespace vantrell
{

class WebViewPlugin;

/// The plug-in that shows and prints reports. It comes with the package "vantrell-print"; a program that
/// never prints loads nothing of the web engine. Main thread.
namespace PrintPlugin
{

/// Its path, ../lib/vantrell/plugins as seen from the folder of the running program; null when it is not
/// installed.
QString find();

/// What a user is told when it is not there.
QString missingMessage();

/// Loads it once, for the life of the process.
Result<WebViewPlugin *> load();

/// From now on load() gives this one, which lives longer than its use; null for the one that is installed.
void replace(WebViewPlugin *plugin);

} // namespace PrintPlugin
} // namespace vantrell

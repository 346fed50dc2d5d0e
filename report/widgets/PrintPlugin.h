#pragma once

#include "support/files/Result.h"

#include <QString>

namespace vantrell
{

class WebViewPlugin;

/// Loads the plug-in that shows and prints reports, which is part of the package "vantrell-print". A program
/// that never prints does not load the web engine. Main thread.
namespace PrintPlugin
{

/// The path of the plug-in, in ../lib/vantrell/plugins relative to the folder of the running program; null
/// when it is not installed.
QString find();

/// The message for the user when it is not installed.
QString missingMessage();

/// Loads the plug-in, which then stays loaded.
Result<WebViewPlugin *> load();

/// For tests: load() returns this plug-in from now on; null restores the installed one.
void replace(WebViewPlugin *plugin);

} // namespace PrintPlugin
} // namespace vantrell

#pragma once

#include "support/files/Result.h"

#include <QString>

class QObject;

#include <functional>

namespace vantrell
{

/// Shows and collects the program's logs. Main thread.
namespace Troubleshooting
{

/// Opens the current log in the default application; shows an alert without one.
void viewLogForApp(const QString &name);

/// The same for the log of the helper programs.
void viewTaskLogForApp(const QString &name);

/// Collects all logs of the program into an archive with a unique name in the folder, in the background.
/// `ended` gets the archive's path, on the main thread, unless `context` has been destroyed by then.
void gatherLogsForAppWithName(const QString &name, const QString &folder, QObject *context,
                              const std::function<void(const Result<QString> &)> &ended);

} // namespace Troubleshooting

} // namespace vantrell

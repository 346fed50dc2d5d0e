#pragma once

#include "support/files/Result.h"

#include <QString>

class QObject;

#include <functional>

namespace vantrell
{

/// The program's logs for the user and for whoever helps the user. Main thread.
namespace Troubleshooting
{

/// Shows the current log in the default application; an alert when there is none.
void viewLogForApp(const QString &name);

/// The same for the log of the helper programs that were run.
void viewTaskLogForApp(const QString &name);

/// Collects all logs of the program into one archive in the folder, under a name that is free there, and
/// returns at once. `ended` gets the archive's path, on the main thread, unless `context` is gone by then.
void gatherLogsForAppWithName(const QString &name, const QString &folder, QObject *context,
                              const std::function<void(const Result<QString> &)> &ended);

} // namespace Troubleshooting

} // namespace vantrell

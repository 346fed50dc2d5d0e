#pragma once

#include <functional>

class QString;
class QWidget;

namespace vantrell
{

/// Asks, as a sheet of the window, whether the file, which exists, may be replaced, and calls back with the
/// answer once the sheet is hidden. Main thread.
void askToReplace(const QString &path, QWidget *window, const std::function<void(bool replaces)> &answered);

} // namespace vantrell

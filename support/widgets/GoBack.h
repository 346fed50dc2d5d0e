#pragma once

class QWidget;

namespace vantrell
{

/// Activates the window with the next turn of the event loop, when a panel on it has closed; when it is gone
/// itself by then, the window of which it was a sheet, and so on. Window managers may choose another one when
/// a panel and the sheet that it belongs to close at once. Main thread.
void goBackTo(QWidget &window);

} // namespace vantrell

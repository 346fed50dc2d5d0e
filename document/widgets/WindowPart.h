#pragma once

#include "document/widgets/WindowState.h"

#include <QCoreApplication>

namespace vantrell
{

class DocumentWindow;
class WindowWork;

/// What the classes that a document window consists of share: the window, which owns them, its state and its
/// long operations. Each declares text functions of its own. Main thread.
struct WindowPart {
    DocumentWindow &m_window;
    WindowState &m_state;
    WindowWork &m_work;
};

} // namespace vantrell

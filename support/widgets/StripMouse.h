#pragma once

#include <QPoint>

#include <optional>

class QMouseEvent;
class QWheelEvent;

namespace vantrell
{

/// What the mouse does on a strip along a timecode: dragging scrolls it, a click is told apart, the wheel
/// zooms about the pointer and scrolls when Shift is held or it turns sideways. Main thread.
class StripMouse
{
public:
    /// By which plus and minus keys zoom, and the wheel with each notch.
    static constexpr double zoomStep = 1.25;

    struct Turn {
        double zoom = 1; ///< factor
        int scroll = 0;  ///< pixels by which what is further right comes into view
    };
    static Turn turnOf(const QWheelEvent &event);

    /// Other buttons than the left one do nothing.
    void press(const QMouseEvent &event);
    bool isPressed() const { return m_last.has_value(); }
    /// How far the strip is dragged since the last call; null unless it is.
    std::optional<QPoint> drag(const QMouseEvent &event);
    bool isDragging() const { return m_isDragging; }

    enum class Released { Nothing, Drag, Click };
    Released release(const QMouseEvent &event);

private:
    QPoint m_pressed;
    std::optional<QPoint> m_last; // where the pointer was, while the button is pressed
    bool m_isDragging = false;
};

} // namespace vantrell

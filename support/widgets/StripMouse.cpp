#include "support/widgets/StripMouse.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

#include <cmath>
#include <cstdlib>
#include <utility>

namespace vantrell
{

StripMouse::Turn StripMouse::turnOf(const QWheelEvent &event)
{
    constexpr double notch = 120;
    const QPoint angle = event.angleDelta();
    const bool isSideways = std::abs(angle.x()) > std::abs(angle.y());
    if (isSideways || event.modifiers().testFlag(Qt::ShiftModifier))
        return {.scroll = isSideways ? -angle.x() : -angle.y()};
    return {.zoom = std::pow(zoomStep, angle.y() / notch)};
}

void StripMouse::press(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return;
    m_pressed = event.pos();
    m_last = m_pressed;
    m_isDragging = false;
}

std::optional<QPoint> StripMouse::drag(const QMouseEvent &event)
{
    if (!m_last)
        return std::nullopt;
    if ((event.pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance())
        m_isDragging = true;
    if (!m_isDragging)
        return std::nullopt;
    return event.pos() - *std::exchange(m_last, event.pos());
}

StripMouse::Released StripMouse::release(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton || !m_last)
        return Released::Nothing;
    m_last.reset();
    return std::exchange(m_isDragging, false) ? Released::Drag : Released::Click;
}

} // namespace vantrell

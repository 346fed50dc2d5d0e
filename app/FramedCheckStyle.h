#pragma once

#include <QProxyStyle>

namespace vantrell
{

/// Fusion with frames of check boxes and radio buttons that can be seen on a dark background. Tables frame
/// their boxes themselves. Main thread.
class FramedCheckStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    FramedCheckStyle();

    /// Becomes the application's style in place of Fusion; any other style stays.
    static void install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
};

} // namespace vantrell

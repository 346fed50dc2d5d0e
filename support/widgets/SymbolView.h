#pragma once

#include <QIcon>
#include <QWidget>

namespace vantrell
{

/// An icon in a window, drawn for the current theme and screen. Main thread.
class SymbolView final : public QWidget
{
    Q_OBJECT

public:
    /// The side is in pixels of the window.
    SymbolView(const QIcon &icon, int side, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QIcon m_icon;
};

} // namespace vantrell

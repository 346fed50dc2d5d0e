#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QString>
#include <QWidget>

namespace vantrell
{

/// One of the program's own symbols as an icon: sharp at every size, and in the colour that the palette has
/// for the role when it is painted. The path is that of an SVG resource drawn in "currentColor", and with
/// "context-fill" where `fill` goes, which is the same in every theme.
QIcon symbolIcon(const QString &path, QPalette::ColorRole role = QPalette::ButtonText,
                 const QColor &fill = QColor());

/// The first of the theme's icons that is there, else the symbol.
QIcon themeIcon(const QStringList &names, const QString &symbolPath);

/// An icon in a window, drawn for the current theme and screen. Main thread.
class SymbolView final : public QWidget
{
public:
    /// The side is in pixels of the window.
    SymbolView(const QIcon &icon, int side, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QIcon m_icon;
};

} // namespace vantrell

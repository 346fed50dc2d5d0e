#pragma once

#include <QComboBox>

namespace vantrell
{

/// A pop-up above a table whose items the user has named: it keeps to a width and shortens the title that
/// does not fit, while its list shows the whole of them.
class ControlPopUp : public QComboBox
{
    Q_OBJECT

public:
    explicit ControlPopUp(QWidget *parent);

    void showPopup() override;
    /// Wide enough for its titles with the margins around them.
    QSize sizeHint() const override;
    /// Wide enough for the chosen title, unless that is a long one.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int margin() const;
    int missingWidth() const;
};

} // namespace vantrell

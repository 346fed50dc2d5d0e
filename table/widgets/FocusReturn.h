#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace vantrell
{

/// Gives the focus back to a table after a control beside it was used with the mouse: the next arrow key is
/// meant for the rows. A control that the keyboard is used on keeps the focus. Main thread.
class FocusReturn final : public QObject
{
    Q_OBJECT

public:
    /// The table becomes the owner.
    explicit FocusReturn(QWidget *table);

    void watch(QWidget *control);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void giveBack();

    QWidget *m_table;
    QPointer<QWidget> m_clicked; ///< used with the mouse last
};

} // namespace vantrell

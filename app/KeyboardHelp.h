#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QMainWindow;
class QTreeWidget;

namespace vantrell
{

/// The window that lists all keys of the program, by menu and place, with a search field. It belongs to the
/// window whose commands it lists, and closes with it; each has one at most. Main thread.
class KeyboardHelp final : public QDialog
{
    Q_OBJECT

public:
    /// Lists the keys as they are now and shows them, in the window that is open already if there is one.
    static KeyboardHelp *showFor(QMainWindow &window);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    explicit KeyboardHelp(QMainWindow &window);

    void fill(const QMainWindow &window);
    void fitWidth();
    void filter();

    QLineEdit *m_search;
    QTreeWidget *m_list;
    QLabel *m_nothing;
};

} // namespace vantrell

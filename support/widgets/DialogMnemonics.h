#pragma once

#include <QObject>

class QWidget;

namespace vantrell
{

/// Gives the buttons of each dialog a mnemonic, when it is shown, where they have none: one that no other
/// button, label or box of the dialog has. Main thread.
class DialogMnemonics : public QObject
{
    Q_OBJECT

public:
    /// For all dialogs of the application, which becomes the parent.
    static void install(QObject &application);
    static void assign(const QWidget &dialog);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    using QObject::QObject;
};

} // namespace vantrell

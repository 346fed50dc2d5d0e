#pragma once

#include <QDialog>

namespace vantrell
{

/// What the program is and which version. Main thread.
class AboutPanel final : public QDialog
{
    Q_OBJECT

public:
    /// The panel, filled from its interface file; null when that cannot be loaded.
    static AboutPanel *load(QWidget *parent);

private:
    AboutPanel(const QString &html, QWidget *parent);
};

} // namespace vantrell

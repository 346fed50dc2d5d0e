#pragma once

#include <QDialog>

namespace vantrell
{

/// Shows the name and version of the program. Main thread.
class AboutPanel final : public QDialog
{
    Q_OBJECT

public:
    /// The panel with the content of its interface file; null when that cannot be loaded.
    static AboutPanel *load(QWidget *parent);

private:
    AboutPanel(const QString &html, QWidget *parent);
};

} // namespace vantrell

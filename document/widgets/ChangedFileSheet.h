#pragma once

#include <QMessageBox>

namespace vantrell
{

/// Asks what to do before a save replaces a file that another program has changed since the project was
/// opened. Cancel is the default. Shown with open().
class ChangedFileSheet final : public QMessageBox
{
    Q_OBJECT

public:
    enum class Choice {
        Cancel,    ///< neither the file nor the project changes
        Overwrite, ///< the project replaces the other program's changes
        SaveAs,    ///< the project is saved to another file
        Reload,    ///< the file is loaded again, and the unsaved changes are lost
    };

    ChangedFileSheet(const QString &fileName, QWidget *parent);

Q_SIGNALS:
    /// Emitted once, after the sheet has closed.
    void chosen(vantrell::ChangedFileSheet::Choice choice);
};

} // namespace vantrell

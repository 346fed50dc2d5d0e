#pragma once

#include <QMessageBox>

namespace vantrell
{

/// Asks what shall become of a file that another program has changed since the project was opened, before a
/// save replaces it. Cancel is the default. Opened with open().
class ChangedFileSheet final : public QMessageBox
{
    Q_OBJECT

public:
    enum class Choice {
        Cancel,    ///< the file and the project stay as they are
        Overwrite, ///< the project replaces what the other program saved
        SaveAs,    ///< the project goes to another file
        Reload,    ///< the file is opened again, and the changes made here are given up
    };

    ChangedFileSheet(const QString &fileName, QWidget *parent);

Q_SIGNALS:
    /// Once, when the sheet has left the window.
    void chosen(vantrell::ChangedFileSheet::Choice choice);
};

} // namespace vantrell

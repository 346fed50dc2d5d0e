#pragma once

#include "handover/Verification.h"

#include <QDialog>

#include <vector>

namespace vantrell
{

/// The sheet that shows what became of verifying a media hash list: first the files that are not as listed.
/// Deletes itself when closed. Main thread.
class VerificationSheet final : public QDialog
{
    Q_OBJECT

public:
    VerificationSheet(const QString &listName, std::vector<Verification::File> files, QWidget *window);

    /// Such as "10 files: 9 OK, 1 changed."
    QString summary() const { return m_summary; }

private:
    void copy() const;

    std::vector<Verification::File> m_files; ///< as they are shown
    QString m_summary;
};

} // namespace vantrell

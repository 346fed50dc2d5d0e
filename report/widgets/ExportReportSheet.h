#pragma once

#include <QDialog>

class QComboBox;

namespace vantrell
{

class ReportGenerator;
class UserDefaults;

/// What a report is written as.
enum class ReportFormat { Page, Pdf, Csv };

/// The sheet that asks what a report shows and what it is written as, then where to. It deletes itself once
/// it is closed. Main thread; the generator and the defaults outlive the sheet.
class ExportReportSheet final : public QDialog
{
    Q_OBJECT

public:
    /// `fileTitle` is the report's title unless the user gives it one, and what the file is named after; the
    /// panel for the file begins in the folder.
    ExportReportSheet(ReportGenerator &report, UserDefaults &defaults, const QString &fileTitle,
                      const QString &folder, QWidget *window);

    ReportFormat format() const;
    void setFormat(ReportFormat format);
    static QString extensionOf(ReportFormat format);

Q_SIGNALS:
    /// The user has chosen.
    void chosen(const QString &path, vantrell::ReportFormat format);

private:
    void askForFile();

    const QString m_fileTitle;
    const QString m_folder;
    QComboBox *m_format;
};

} // namespace vantrell

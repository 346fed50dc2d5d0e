#pragma once

#include <QDialog>

class QComboBox;

namespace vantrell
{

class ReportGenerator;
class UserDefaults;

/// The file formats of reports.
enum class ReportFormat { Page, Pdf, Csv };

/// The sheet that asks for the contents and the format of a report, and then for its file. Deletes itself
/// when closed. Main thread; the generator and the defaults outlive the sheet.
class ExportReportSheet final : public QDialog
{
    Q_OBJECT

public:
    /// `fileTitle` is the default title of the report and the proposed name of its file, in the given folder.
    ExportReportSheet(ReportGenerator &report, UserDefaults &defaults, const QString &fileTitle,
                      const QString &folder, QWidget *window);

    ReportFormat format() const;
    static QString extensionOf(ReportFormat format);

Q_SIGNALS:
    /// The user has chosen a file.
    void chosen(const QString &path, vantrell::ReportFormat format);

private:
    void askForFile();

    const QString m_fileTitle;
    const QString m_folder;
    QComboBox *m_format;
};

} // namespace vantrell

#pragma once

#include "report/widgets/PrintInfo.h"

#include <QDialog>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <utility>

class QComboBox;
class QDoubleSpinBox;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

namespace vantrell
{

class PrintOperation;
class QVPrint;
class QVPrintViewController;

/// The print panel: printer, copies and paper, an accessory pane of the program that prints, and a preview of
/// the page that the shared web view shows. A sheet on its window; it deletes itself once it is closed. Main
/// thread.
class PrintPanel final : public QDialog
{
    Q_OBJECT

public:
    /// The printers that there are to choose from besides the PDF file.
    PrintPanel(QVPrint &print, const QStringList &printers, QWidget *window);
    ~PrintPanel() override;

    /// The names of the system's printers.
    static QStringList systemPrinters();

    void setPrintInfo(const PrintInfo &info);
    PrintInfo printInfo() const;
    /// What gives the printed pages their title, asked when they are printed.
    void setJobTitle(std::function<QString()> jobTitle) { m_jobTitle = std::move(jobTitle); }
    /// Where the panel for the file of a PDF begins, and the name that it proposes.
    void setProposedFile(const QString &path) { m_proposedFile = path; }

    /// Shows the controller's view beside the preview, which follows it from now on.
    void addAccessoryController(QVPrintViewController *controller);

    /// Prints what the panel says: asks for a file first where that is a PDF.
    void print();
    /// What the panel for the file ends with.
    void printTo(const QString &file);

Q_SIGNALS:
    /// The panel is over; the info says what was printed where.
    void ended(bool didPrint, const vantrell::PrintInfo &info);

protected:
    void done(int result) override;

private:
    QWidget *makeSettings();
    void infoChanged();
    void run(const PrintInfo &info);

    QVPrint &m_print;
    PrintInfo m_info;
    std::function<QString()> m_jobTitle;
    QString m_proposedFile;
    bool m_didPrint = false;
    QPointer<PrintOperation> m_operation;

    QComboBox *m_printer;
    QSpinBox *m_copies;
    QComboBox *m_paper;
    QComboBox *m_orientation;
    QDoubleSpinBox *m_margin;
    QVBoxLayout *m_accessories;
    QWidget *m_preview;
    QPushButton *m_printButton;
};

} // namespace vantrell

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

/// The print panel: printer, copies and paper, an accessory pane, and the shared web view as preview. A sheet
/// on its window that deletes itself when closed. Main thread.
class PrintPanel final : public QDialog
{
    Q_OBJECT

public:
    /// Offers the printers in addition to a PDF file.
    PrintPanel(QVPrint &print, const QStringList &printers, QWidget *window);
    ~PrintPanel() override;

    /// The names of the system's printers.
    static QStringList systemPrinters();

    void setPrintInfo(const PrintInfo &info);
    PrintInfo printInfo() const;
    /// Sets the function that is called for the job title when printing starts.
    void setJobTitle(std::function<QString()> jobTitle) { m_jobTitle = std::move(jobTitle); }
    /// Sets the folder and name that the file panel of a PDF proposes.
    void setProposedFile(const QString &path) { m_proposedFile = path; }

    /// Shows the controller's view beside the preview, which is updated with it from now on.
    void addAccessoryController(QVPrintViewController *controller);

    /// Prints with the settings of the panel; asks for a file first if it is a PDF.
    void print();
    /// Prints to a PDF file.
    void printTo(const QString &file);

Q_SIGNALS:
    /// The panel has closed; the info has the settings used.
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

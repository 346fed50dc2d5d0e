#include "report/widgets/ExportReportSheet.h"

#include "report/PrintHelper.h"
#include "report/widgets/ReportOptions.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace vantrell
{

ExportReportSheet::ExportReportSheet(ReportGenerator &report, UserDefaults &defaults,
                                     const QString &fileTitle, const QString &folder, QWidget *window)
    : QDialog(window)
    , m_fileTitle(fileTitle)
    , m_folder(folder)
    , m_format(new QComboBox(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Export Report"));
    m_format->addItem(tr("HTML page"), int(ReportFormat::Page));
    m_format->addItem(tr("PDF"), int(ReportFormat::Pdf));
    m_format->addItem(tr("CSV for spreadsheets"), int(ReportFormat::Csv));

    auto *const form = new QFormLayout;
    form->addRow(tr("&Format"), m_format);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    if (PrintHelper::find().isEmpty()) {
        const int pdf = m_format->findData(int(ReportFormat::Pdf));
        static_cast<QStandardItemModel *>(m_format->model())->item(pdf)->setEnabled(false);
        m_format->setItemData(pdf, PrintHelper::missingMessage(), Qt::ToolTipRole);
        auto *const hint = new QLabel(PrintHelper::missingMessage(), this);
        hint->setWordWrap(true);
        hint->setForegroundRole(QPalette::PlaceholderText);
        layout->addWidget(hint);
    }
    layout->addWidget(new ReportOptions(report, defaults, fileTitle, this), 1);

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton *const write = buttons->addButton(tr("&Export…"), QDialogButtonBox::AcceptRole);
    write->setDefault(true);
    layout->addWidget(buttons);
    connect(write, &QPushButton::clicked, this, &ExportReportSheet::askForFile);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportReportSheet::reject);
    resize(fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 26);
}

ReportFormat ExportReportSheet::format() const
{
    return ReportFormat(m_format->currentData().toInt());
}

void ExportReportSheet::setFormat(ReportFormat format)
{
    m_format->setCurrentIndex(m_format->findData(int(format)));
}

QString ExportReportSheet::extensionOf(ReportFormat format)
{
    switch (format) {
    case ReportFormat::Pdf:
        return QStringLiteral("pdf");
    case ReportFormat::Csv:
        return QStringLiteral("csv");
    case ReportFormat::Page:
        break;
    }
    return QStringLiteral("html");
}

void ExportReportSheet::askForFile()
{
    const QString extension = extensionOf(format());
    auto *const dialog = new QFileDialog(
        this, tr("Export Report"), m_folder,
        QStringLiteral("%1 (*.%2 *.%3)").arg(m_format->currentText(), extension, extension.toUpper()));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setLabelText(QFileDialog::Accept, tr("Export"));
    dialog->setDefaultSuffix(extension);
    dialog->selectFile(QStringLiteral("%1.%2").arg(m_fileTitle, extension));
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFileDialog::accepted, this, [this, dialog] {
        dialog->hide();
        hide(); // an alert then is the window's only sheet
        Q_EMIT chosen(dialog->selectedFiles().value(0), format());
        accept();
    });
    dialog->open();
}

} // namespace vantrell

#include "report/widgets/ExportReportSheet.h"

#include "report/PrintHelper.h"
#include "report/widgets/ReportOptions.h"
#include "support/widgets/FilePanel.h"

#include <QComboBox>
#include <QDialogButtonBox>
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
    form->addRow(tr("&Format:"), m_format);
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
    FilePanel::runForSaving(
        {.window = this,
         .title = tr("Export Report"),
         .folder = m_folder,
         .filter =
             QStringLiteral("%1 (*.%2 *.%3)").arg(m_format->currentText(), extension, extension.toUpper()),
         .extension = extension,
         .proposedName = QStringLiteral("%1.%2").arg(m_fileTitle, extension),
         .acceptLabel = tr("Export")},
        [this](const QString &path) {
            hide(); // an alert then is the window's only sheet
            Q_EMIT chosen(path, format());
            accept();
        });
}

} // namespace vantrell

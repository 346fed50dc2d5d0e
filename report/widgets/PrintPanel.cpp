#include "report/widgets/PrintPanel.h"

#include "report/widgets/PrintOperation.h"
#include "report/widgets/QVPrint.h"
#include "support/widgets/FilePanel.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrell
{

constexpr int settingsWidth = 300;

PrintPanel::PrintPanel(QVPrint &print, const QStringList &printers, QWidget *window)
    : QDialog(window)
    , m_print(print)
    , m_printer(new QComboBox(this))
    , m_copies(new QSpinBox(this))
    , m_paper(new QComboBox(this))
    , m_orientation(new QComboBox(this))
    , m_margin(new QDoubleSpinBox(this))
    , m_accessories(new QVBoxLayout)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Print"));

    m_printer->addItem(tr("Save as PDF"), QString());
    for (const QString &printer : printers)
        m_printer->addItem(printer, printer);
    m_copies->setRange(1, PrintInfo::mostCopies);
    for (const QString &paper : PrintInfo::papers())
        m_paper->addItem(paper, paper);
    m_orientation->addItem(tr("Portrait"), int(QPageLayout::Portrait));
    m_orientation->addItem(tr("Landscape"), int(QPageLayout::Landscape));
    m_margin->setRange(PrintInfo::narrowestMargin, PrintInfo::widestMargin);
    m_margin->setDecimals(0);
    m_margin->setSuffix(tr(" mm"));

    auto *const frame = new QFrame(this);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAccessibleName(tr("Preview"));
    auto *const frameLayout = new QVBoxLayout(frame);
    frameLayout->setContentsMargins(0, 0, 0, 0);
    m_preview = m_print.printView();
    frameLayout->addWidget(m_preview);
    m_preview->show();

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_printButton = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    m_printButton->setDefault(true);
    connect(m_printButton, &QPushButton::clicked, this, &PrintPanel::print);
    connect(buttons, &QDialogButtonBox::rejected, this, &PrintPanel::reject);

    auto *const columns = new QHBoxLayout;
    columns->addWidget(makeSettings());
    columns->addWidget(frame, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(buttons);

    for (QComboBox *const box : {m_printer, m_paper, m_orientation})
        connect(box, &QComboBox::currentIndexChanged, this, &PrintPanel::infoChanged);
    connect(m_margin, &QDoubleSpinBox::valueChanged, this, &PrintPanel::infoChanged);
    connect(m_copies, &QSpinBox::valueChanged, this, &PrintPanel::infoChanged);
    setPrintInfo(PrintInfo());
    const QSize available = screen()->availableSize();
    resize(QSize(980, 700).boundedTo(available * 0.9));
}

PrintPanel::~PrintPanel()
{
    delete m_operation; // before the view is taken away
    m_print.hidePrintView();
}

QStringList PrintPanel::systemPrinters()
{
    return QPrinterInfo::availablePrinterNames();
}

QWidget *PrintPanel::makeSettings()
{
    auto *const settings = new QWidget(this);
    settings->setMinimumWidth(settingsWidth);
    settings->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred); // wider where texts need it
    auto *const form = new QFormLayout;
    form->addRow(tr("&Printer:"), m_printer);
    form->addRow(tr("C&opies:"), m_copies);
    form->addRow(tr("Pa&per:"), m_paper);
    form->addRow(tr("Or&ientation:"), m_orientation);
    form->addRow(tr("&Margins:"), m_margin);
    auto *const layout = new QVBoxLayout(settings);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(form);
    layout->addSpacing(8);
    layout->addLayout(m_accessories, 1);
    return settings;
}

void PrintPanel::setPrintInfo(const PrintInfo &info)
{
    m_info = info;
    {
        const QSignalBlocker blockers[] = {QSignalBlocker(m_printer), QSignalBlocker(m_copies),
                                           QSignalBlocker(m_paper), QSignalBlocker(m_orientation),
                                           QSignalBlocker(m_margin)};
        const int printer = info.printer.isNull() ? 0 : m_printer->findData(info.printer);
        m_printer->setCurrentIndex(std::max(printer, 0)); // it may have been removed
        m_copies->setValue(info.copies);
        m_paper->setCurrentIndex(m_paper->findData(info.paper()));
        m_orientation->setCurrentIndex(m_orientation->findData(int(info.layout.orientation())));
        m_margin->setValue(info.margin());
    }
    infoChanged();
}

PrintInfo PrintPanel::printInfo() const
{
    PrintInfo info = m_info;
    const QString printer = m_printer->currentData().toString();
    info.printer = printer.isEmpty() ? QString() : printer;
    info.copies = m_copies->value();
    info.setPaper(m_paper->currentData().toString());
    info.layout.setOrientation(QPageLayout::Orientation(m_orientation->currentData().toInt()));
    info.setMargin(m_margin->value());
    return info;
}

void PrintPanel::infoChanged()
{
    const PrintInfo info = printInfo();
    m_copies->setEnabled(!info.printer.isNull());
    m_printButton->setText(info.printer.isNull() ? tr("&Save…") : tr("&Print"));
    m_print.setPaper(info);
}

void PrintPanel::addAccessoryController(QVPrintViewController *controller)
{
    m_accessories->addWidget(controller->view());
    connect(controller, &QVPrintViewController::dummyValueChanged, m_preview, qOverload<>(&QWidget::update));
}

void PrintPanel::print()
{
    const PrintInfo info = printInfo();
    if (!info.printer.isNull()) {
        run(info);
        return;
    }
    const QFileInfo proposed(m_proposedFile);
    FilePanel::runForSaving({.window = this,
                             .title = tr("Save as PDF"),
                             .folder = proposed.path(),
                             .filter = tr("PDF files (*.pdf *.PDF)"),
                             .extension = QStringLiteral("pdf"),
                             .proposedName = proposed.fileName()},
                            [this](const QString &path) { printTo(path); });
}

void PrintPanel::printTo(const QString &file)
{
    PrintInfo info = printInfo();
    info.printer = QString();
    info.file = file;
    run(info);
}

void PrintPanel::run(const PrintInfo &info)
{
    if (m_operation)
        return;
    m_info = info;
    m_info.jobTitle = m_jobTitle ? m_jobTitle() : QString();
    m_operation = m_print.printOperationWithPrintInfo(m_info, this);
    connect(m_operation, &PrintOperation::finished, this, [this](const Result<void> &printed) {
        m_operation->deleteLater();
        m_operation.clear();
        m_didPrint = printed.isOk();
        if (printed)
            accept();
    });
    m_print.startPrintOp(m_operation, this);
}

void PrintPanel::done(int result)
{
    QDialog::done(result);
    Q_EMIT ended(m_didPrint, m_didPrint ? m_info : printInfo());
}

} // namespace vantrell

#include "handover/widgets/ExportListSheet.h"

#include "support/widgets/FilePanel.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantrell
{

namespace
{

struct ListForm {
    QString filter; // what its files are
    QString extension;
    QString hint;
};

ListForm formOf(MediaListFormat format)
{
    switch (format) {
    case MediaListFormat::Csv:
        return {
            ExportListSheet::tr("Tables"), QStringLiteral("csv"),
            ExportListSheet::tr("A table of the files, also the missing ones, for spreadsheet programs.")};
    case MediaListFormat::Paths:
        return {ExportListSheet::tr("Lists of paths"), QStringLiteral("txt"),
                ExportListSheet::tr(
                    "One path a line, for rsync --files-from with the source “/”. Missing files are "
                    "left out.")};
    case MediaListFormat::PathsByNul:
        return {ExportListSheet::tr("Lists of paths"), QStringLiteral("txt"),
                ExportListSheet::tr(
                    "Paths that a NUL ends, for rsync --from0 --files-from with the source “/”. Missing "
                    "files are left out.")};
    case MediaListFormat::Checksums:
        break;
    }
    return {ExportListSheet::tr("Media hash lists"), QStringLiteral("mhl"),
            ExportListSheet::tr(
                "Every file is read, which takes as long as copying it. A list that was cancelled goes "
                "on where it stopped when it is exported to the same file again. Files in the list’s "
                "folder are listed relative to it: keep it beside the media. Missing files are left "
                "out.")};
}

} // namespace

ExportListSheet::ExportListSheet(const QStringList &sequences, const QString &fileTitle,
                                 const QString &folder, QWidget *window)
    : QDialog(window)
    , m_fileTitle(fileTitle)
    , m_folder(folder)
    , m_format(new QComboBox(this))
    , m_scope(new QComboBox(this))
    , m_hint(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Export List"));
    m_format->addItem(tr("Table (CSV)"), int(MediaListFormat::Csv));
    m_format->addItem(tr("Paths for rsync"), int(MediaListFormat::Paths));
    m_format->addItem(tr("Paths for rsync, separated by NUL"), int(MediaListFormat::PathsByNul));
    m_format->addItem(tr("Checksums (MHL, MD5 and xxHash64)"), int(MediaListFormat::Checksums));
    m_scope->addItem(tr("All files"));
    m_scope->addItem(tr("Files on show"));
    for (const QString &sequence : sequences.sliced(sequences.isEmpty() ? 0 : 1))
        m_scope->addItem(tr("Files used by “%1”").arg(sequence));
    m_scope->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_scope->setMinimumContentsLength(36);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setMinimumHeight(m_hint->fontMetrics().lineSpacing() * 5);
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *const form = new QFormLayout;
    form->addRow(tr("&Format"), m_format);
    form->addRow(tr("F&iles"), m_scope);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton *const write = buttons->addButton(tr("&Export…"), QDialogButtonBox::AcceptRole);
    write->setDefault(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_hint, 1);
    layout->addWidget(buttons);
    connect(m_format, &QComboBox::currentIndexChanged, this, &ExportListSheet::showHint);
    connect(write, &QPushButton::clicked, this, &ExportListSheet::askForFile);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    showHint();
}

MediaListFormat ExportListSheet::format() const
{
    return MediaListFormat(m_format->currentData().toInt());
}

MediaListScope ExportListSheet::scope() const
{
    using enum MediaListScope::Files;
    const int index = m_scope->currentIndex();
    if (index < 2)
        return {index == 0 ? All : OnShow, 0};
    return {OfSequence, index - 1};
}

void ExportListSheet::showHint()
{
    m_hint->setText(formOf(format()).hint);
}

void ExportListSheet::askForFile()
{
    const ListForm form = formOf(format());
    FilePanel::runForSaving(
        {.window = this,
         .title = tr("Export List"),
         .folder = m_folder,
         .filter =
             QStringLiteral("%1 (*.%2 *.%3)").arg(form.filter, form.extension, form.extension.toUpper()),
         .extension = form.extension,
         .proposedName = QStringLiteral("%1.%2").arg(m_fileTitle, form.extension),
         .acceptLabel = tr("Export")},
        [this](const QString &path) {
            hide(); // an alert then is the window's only sheet
            Q_EMIT chosen(path, format(), scope());
            accept();
        });
}

} // namespace vantrell

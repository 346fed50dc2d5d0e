#include "handover/widgets/RelinkSheet.h"

#include "handover/widgets/CandidateDelegate.h"
#include "handover/widgets/RelinkTableModel.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/FilePanel.h"
#include "table/widgets/SheetTable.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantrell
{

namespace
{

QString countText(std::uint64_t count)
{
    return QLocale().toString(qulonglong(count));
}

/// A line about the first of the folders, and how many more there are; empty for none.
QString folderText(const QStringList &folders, const QString &text)
{
    if (folders.isEmpty())
        return QString();
    const QString line = QLatin1Char('\n') + text.arg(folders.first());
    return folders.size() == 1
               ? line
               : line + RelinkSheet::tr(" So it is with %1 other folders.").arg(folders.size() - 1);
}

QLabel *makeLine(QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

RelinkSheet::RelinkSheet(std::vector<MissingFile> missing, const QString &folder, const QString &url,
                         UserDefaults &defaults, QWidget *window)
    : QDialog(window)
    , m_missing(std::move(missing))
    , m_url(url)
    , m_defaults(defaults)
    , m_model(new RelinkTableModel(this))
    , m_table(new SheetTable(m_model, this))
    , m_folders(new QListWidget(this))
    , m_removeFolder(new QPushButton(tr("R&emove"), this))
    , m_searchButton(new QPushButton(this))
    , m_busy(new QProgressBar(this))
    , m_status(makeLine(this))
    , m_mappingLine(new QWidget(this))
    , m_mappingText(makeLine(m_mappingLine))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Relink"));
    const int character = fontMetrics().averageCharWidth();
    m_table->setAccessibleName(tr("Missing files"));
    m_table->setItemDelegate(new CandidateDelegate(m_table));
    m_table->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_table->setColumnWidth(RelinkTableModel::Name, character * 30);
    m_table->setColumnWidth(RelinkTableModel::Match, character * 30);
    m_table->setColumnWidth(RelinkTableModel::FoundIn, character * 50);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    m_busy->setFixedWidth(character * 20);
    m_busy->setAccessibleName(tr("Searching"));
    m_busy->hide();

    auto *const useMapping = new QPushButton(tr("&Use Mapping Instead"), m_mappingLine);
    useMapping->setAutoDefault(false);
    useMapping->setToolTip(tr("Look for the files there, and leave the project as it is"));
    auto *const mapping = new QHBoxLayout(m_mappingLine);
    mapping->setContentsMargins(0, 0, 0, 0);
    mapping->addWidget(m_mappingText, 1);
    mapping->addWidget(useMapping);

    auto *const status = new QHBoxLayout;
    status->addWidget(m_searchButton);
    status->addWidget(m_busy);
    status->addWidget(m_status, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(makeFolders());
    layout->addLayout(status);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_mappingLine);
    layout->addWidget(makeButtons());
    resize(QSize(character * 164, fontMetrics().height() * 34).boundedTo(window->size()));

    connect(m_searchButton, &QPushButton::clicked, this, &RelinkSheet::search);
    connect(useMapping, &QPushButton::clicked, this, &RelinkSheet::useMapping);
    connect(m_table, &QAbstractItemView::clicked, this, [this](const QModelIndex &index) {
        if (index.flags().testFlag(Qt::ItemIsEditable))
            m_table->edit(index);
    });
    connect(m_model, &RelinkTableModel::planChanged, this, &RelinkSheet::updateControls);
    connect(m_folders, &QListWidget::itemSelectionChanged, this, &RelinkSheet::updateControls);
    std::vector<RelinkMatch> rows;
    for (const MissingFile &file : m_missing)
        rows.push_back({file, {}});
    m_model->setPlan(RelinkPlan(std::move(rows)), false);
    m_status->setText(m_missing.size() == 1 ? tr("1 file is missing.")
                                            : tr("%1 files are missing.").arg(countText(m_missing.size())));
    QStringList stored;
    for (const QVariant &path : m_defaults.value(foldersKey).toList())
        stored.append(path.toString());
    for (const QString &path : stored.isEmpty() ? QStringList(folder) : stored)
        addFolder(path);
    m_searchButton->setFocus();
}

QWidget *RelinkSheet::makeFolders()
{
    auto *const part = new QWidget(this);
    auto *const label = new QLabel(tr("&Look in these folders, and all that is below them:"), part);
    label->setBuddy(m_folders);
    m_folders->setAccessibleName(tr("Folders to look in"));
    m_folders->setTextElideMode(Qt::ElideMiddle);
    m_folders->setFixedHeight(fontMetrics().height() * 5);
    auto *const add = new QPushButton(tr("&Add Folder…"), part);
    auto *const buttons = new QVBoxLayout;
    for (QPushButton *const button : {add, m_removeFolder}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    setTabOrder(m_folders, add);
    setTabOrder(add, m_removeFolder);
    setTabOrder(m_removeFolder, m_searchButton);
    setTabOrder(m_searchButton, m_table);
    auto *const line = new QHBoxLayout;
    line->addWidget(m_folders, 1);
    line->addLayout(buttons);
    auto *const layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addLayout(line);
    connect(add, &QPushButton::clicked, this, &RelinkSheet::askForFolder);
    connect(m_removeFolder, &QPushButton::clicked, this, &RelinkSheet::removeFolder);
    return part;
}

QWidget *RelinkSheet::makeButtons()
{
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_relink = buttons->addButton(tr("&Relink"), QDialogButtonBox::AcceptRole);
    QPushButton *const mappings = buttons->addButton(tr("Path &Mappings…"), QDialogButtonBox::ResetRole);
    mappings->setAutoDefault(false);
    connect(m_relink, &QPushButton::clicked, this, &RelinkSheet::relink);
    connect(mappings, &QPushButton::clicked, this, [this] {
        close();
        Q_EMIT pathMappingsRequested();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

QStringList RelinkSheet::folders() const
{
    QStringList folders;
    for (int row = 0; row < m_folders->count(); ++row)
        folders.append(m_folders->item(row)->text());
    return folders;
}

void RelinkSheet::addFolder(const QString &path)
{
    const QString folder = QDir::cleanPath(path);
    if (path.isEmpty() || folders().contains(folder))
        return;
    auto *const item = new QListWidgetItem(folder, m_folders);
    item->setToolTip(folder);
    m_folders->setCurrentItem(item);
    updateControls();
}

void RelinkSheet::askForFolder()
{
    FilePanel::runForFolder({.window = this,
                             .title = tr("Add a Folder to Look In"),
                             .folder = folders().value(m_folders->currentRow()),
                             .acceptLabel = tr("Add")},
                            [this](const QString &path) { addFolder(path); });
}

void RelinkSheet::removeFolder()
{
    delete m_folders->takeItem(m_folders->currentRow());
    updateControls();
}

void RelinkSheet::search()
{
    if (m_search) {
        endSearch();
        m_status->setText(tr("The search was stopped."));
        return;
    }
    m_defaults.setValue(foldersKey, QVariant(folders()));
    m_search = std::make_unique<RelinkSearch>(m_missing, folders(), nullptr);
    connect(m_search.get(), &RelinkSearch::progressed, this, &RelinkSheet::showProgress);
    connect(m_search.get(), &RelinkSearch::ended, this, &RelinkSheet::showResult);
    m_busy->show();
    showProgress({});
    updateControls();
}

void RelinkSheet::endSearch()
{
    if (m_search) {
        m_search->disconnect(this); // its result may be on the way
        m_search.release()->deleteLater();
    }
    m_busy->hide();
    updateControls();
}

void RelinkSheet::showProgress(const FolderWalk::Progress &progress)
{
    m_status->setText(
        tr("%1 folders, %2 files seen, %3 found…")
            .arg(countText(progress.folders), countText(progress.entries), countText(progress.found)));
}

void RelinkSheet::showResult(const RelinkSearch::Result &result)
{
    m_model->setPlan(RelinkPlan(result.matches), true);
    endSearch();
    const RelinkPlan &plan = m_model->plan();
    const std::size_t found = plan.foundCount();
    const std::size_t ambiguous = plan.ambiguousCount();
    QString text =
        tr("%1 of %2 missing files found").arg(countText(found + ambiguous), countText(plan.size()));
    if (ambiguous > 0)
        text += tr(", %1 of them several times: choose one of each").arg(countText(ambiguous));
    text += QLatin1Char('.');
    m_status->setText(text + folderText(result.unreadable, tr("“%1” cannot be read.")) +
                      folderText(result.unanswered, tr("“%1” does not answer.")));
    if (const int row = m_url.isEmpty() ? -1 : m_model->rowOf(m_url); row >= 0) {
        m_table->selectRow(row);
        m_table->scrollTo(m_model->index(row, 0));
    }
    (m_relink->isEnabled() ? m_relink : m_searchButton)->setFocus();
}

void RelinkSheet::updateControls()
{
    if (!m_relink)
        return;
    m_searchButton->setText(m_search ? tr("&Stop") : tr("&Search"));
    m_searchButton->setEnabled(m_folders->count() > 0);
    m_removeFolder->setEnabled(m_folders->currentRow() >= 0);
    m_folders->setEnabled(!m_search);
    const std::vector<RelinkChoice> choices = m_model->plan().choices();
    m_relink->setEnabled(!m_search && !choices.empty());
    (m_relink->isEnabled() ? m_relink : m_searchButton)->setDefault(true);
    const std::optional<PathMapping> mapping = m_search ? std::nullopt : m_model->plan().mapping();
    m_mappingLine->setVisible(mapping.has_value());
    if (mapping)
        m_mappingText->setText(
            tr("All of them are found where “%1” is “%2”. A path mapping leaves the project "
               "as it is.")
                .arg(mapping->from, mapping->to));
}

void RelinkSheet::relink()
{
    const std::vector<RelinkChoice> choices = m_model->plan().choices();
    hide(); // an alert then is the window's only sheet
    Q_EMIT relinkChosen(choices);
    accept();
}

void RelinkSheet::useMapping()
{
    const std::optional<PathMapping> mapping = m_model->plan().mapping();
    if (!mapping)
        return;
    hide();
    Q_EMIT mappingChosen(*mapping);
    accept();
}

} // namespace vantrell

#include "bridge/widgets/QVFCPProjectLoader.h"

#include "bridge/QVAppleEvents.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

namespace vantrell
{

QVFCPProjectLoader *QVFCPProjectLoader::showOpenDialog(const Services &services, QWidget *parent)
{
    QVFCPProjectLoader *dialog = nullptr;
    guarded("+[QVFCPProjectLoader showOpenDialog]",
            [&] { dialog = new QVFCPProjectLoader(services, parent); });
    if (!dialog) {
        const QString message = QStringLiteral("Critical error: unable to load FCP project loader dialog.");
        const QString advice = QStringLiteral("You must reinstall the application.");
        QVLog::appendLog(u"%@ %@", message, advice);
        QVAlert::alertSheetWithMessageText(message, QStringLiteral("OK"), QString(), QString(), advice,
                                           nullptr, true);
        return nullptr;
    }
    dialog->show();
    dialog->readProjects();
    return dialog;
}

QVFCPProjectLoader::QVFCPProjectLoader(const Services &services, QWidget *parent)
    : QDialog(parent)
    , m_services(services)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(tr("Open Final Cut Pro Project"));
    makeContent();
    resize(fontMetrics().averageCharWidth() * 100, fontMetrics().height() * 18);
}

void QVFCPProjectLoader::makeContent()
{
    auto *const title = new QLabel(tr("&Projects that are open in Final Cut Pro:"), this);
    m_table = new QListWidget(this);
    m_table->setAccessibleName(tr("Projects that are open in Final Cut Pro"));
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setIconSize({16, 16});
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setUniformItemSizes(true);
    title->setBuddy(m_table);
    connect(m_table, &QListWidget::itemDoubleClicked, this, &QVFCPProjectLoader::openProject);

    m_content = new QStackedWidget(this);
    m_content->addWidget(m_table);
    m_content->addWidget(makeMessagePage());

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Close, this);
    m_open = buttons->button(QDialogButtonBox::Open);
    m_open->setDefault(true);
    m_open->setEnabled(false);
    connect(m_open, &QPushButton::clicked, this, &QVFCPProjectLoader::openProject);
    connect(buttons, &QDialogButtonBox::rejected, this, &QVFCPProjectLoader::closeDialog);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(m_content, 1);
    layout->addWidget(buttons);
}

/// The page that replaces the list while there is none.
QWidget *QVFCPProjectLoader::makeMessagePage()
{
    auto *const page = new QFrame(m_content);
    page->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    page->setBackgroundRole(QPalette::Base);
    page->setAutoFillBackground(true);
    m_message = new QLabel(page);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setForegroundRole(QPalette::Text);
    m_busy = new QProgressBar(page);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    m_busy->setFixedWidth(fontMetrics().averageCharWidth() * 28);
    m_busy->setAccessibleName(tr("Asking Final Cut Pro"));
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 12, 24, 12);
    layout->setSpacing(10);
    layout->addStretch(1);
    layout->addWidget(m_message);
    layout->addWidget(m_busy, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    return page;
}

void QVFCPProjectLoader::showMessage(const QString &text)
{
    m_message->setText(text);
    m_busy->setVisible(m_isReading);
    m_content->setCurrentWidget(m_message->parentWidget());
}

void QVFCPProjectLoader::readProjects()
{
    m_isReading = true;
    showMessage(tr("Asking Final Cut Pro for its open projects…"));
    BackgroundWork::run([self = QPointer(this), cancel = m_cancel] {
        const std::optional<QStringList> projects = QVAppleEvents::listOfOpenFCPProjects(cancel);
        const bool isRunning = projects || QVAppleEvents::isFCPRunning();
        MainThread::post([self, projects, isRunning] {
            if (self)
                self->projectsRead(projects, isRunning);
        });
    });
}

void QVFCPProjectLoader::projectsRead(const std::optional<QStringList> &projects, bool isRunning)
{
    m_isReading = false;
    m_projects = projects.value_or(QStringList());
    m_open->setEnabled(!m_projects.isEmpty());
    if (!m_projects.isEmpty())
        fillTable();
    else if (projects)
        showMessage(tr("No project is open in Final Cut Pro."));
    else if (isRunning)
        showMessage(tr("Final Cut Pro does not answer."));
    else
        showMessage(tr("Final Cut Pro is not running."));
    Q_EMIT listRead();
}

void QVFCPProjectLoader::fillTable()
{
    for (const QString &path : std::as_const(m_projects)) {
        auto *const item = new QListWidgetItem(m_services.iconOfFile(path), path, m_table);
        item->setToolTip(path);
    }
    // Usually there is only one project: Return opens it.
    m_table->setCurrentRow(0);
    m_content->setCurrentWidget(m_table);
    m_table->setFocus();
}

void QVFCPProjectLoader::openProject()
{
    QStringList chosen;
    for (int row = 0; row < m_table->count(); ++row) {
        if (m_table->item(row)->isSelected())
            chosen.append(m_projects.at(row));
    }
    if (chosen.isEmpty())
        return;
    const Services services = m_services; // the dialog may be deleted while a document opens
    accept();
    for (const QString &path : std::as_const(chosen)) {
        const Result<void> opened = services.openDocument(path);
        if (!opened)
            QVAlert::alertSheetWithMessageText(tr("Error loading project"), opened.message(), nullptr);
    }
}

} // namespace vantrell

#include "app/Recovery.h"

#include "app/RecoveryPanel.h"
#include "document/MyDocument.h"
#include "document/widgets/DocumentWindow.h"
#include "support/alerts/QVAlert.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <utility>

namespace vantrell
{

Recovery::Recovery(Windows windows, Restore restore)
    : m_windows(std::move(windows))
    , m_restore(std::move(restore))
{
}

Recovery::~Recovery()
{
    delete m_panel;
}

bool Recovery::isOffering() const
{
    return m_searches > 0 || m_panel;
}

RecoveryPanel *Recovery::panel() const
{
    return m_panel;
}

/// Calls `found` here with the journals of the project, or of all projects if the path is null.
void Recovery::search(const QString &projectPath, const std::function<void(std::vector<FoundJournal>)> &found)
{
    ++m_searches;
    BackgroundWork::run([self = QPointer(this), projectPath, found, folder = JournalFolder::standard()] {
        const auto journals =
            std::make_shared<std::vector<FoundJournal>>(JournalFolder::find(folder, projectPath));
        MainThread::post([self, found, journals] {
            if (!self)
                return;
            --self->m_searches;
            if (!journals->empty())
                found(std::move(*journals));
        });
    });
}

void Recovery::offerAll()
{
    search(QString(), [this](std::vector<FoundJournal> journals) {
        const std::vector<DocumentWindow *> windows = m_windows();
        const auto isOpen = [&windows](const FoundJournal &journal) {
            return std::any_of(windows.begin(), windows.end(), [&](const DocumentWindow *window) {
                return window->path() == journal.header.projectPath;
            });
        };
        journals.erase(std::remove_if(journals.begin(), journals.end(), isOpen), journals.end());
        if (journals.empty() || m_panel)
            return;
        m_panel = show(std::move(journals), nullptr); // the start window hides once a project opens
    });
}

void Recovery::offerFor(DocumentWindow &window)
{
    search(window.path(), [this, shown = QPointer(&window)](std::vector<FoundJournal> journals) {
        const MyDocument *const document = shown ? shown->document() : nullptr;
        if (!document || document->isEdited())
            return;
        const auto isOffered = [this](const FoundJournal &journal) {
            return m_panel &&
                   std::any_of(m_panel->journals().begin(), m_panel->journals().end(),
                               [&](const FoundJournal &each) { return each.path == journal.path; });
        };
        journals.erase(std::remove_if(journals.begin(), journals.end(), isOffered), journals.end());
        if (!journals.empty())
            show(std::move(journals), shown);
    });
}

RecoveryPanel *Recovery::show(std::vector<FoundJournal> journals, QWidget *parent)
{
    auto *const panel = new RecoveryPanel(std::move(journals), parent);
    connect(panel, &RecoveryPanel::restoreRequested, this, &Recovery::restore);
    connect(panel, &RecoveryPanel::discardRequested, this, [](const FoundJournal &journal) {
        BackgroundWork::run([journal] { JournalFolder::discard(journal); });
    });
    panel->show();
    panel->raise();
    panel->activateWindow();
    return panel;
}

void Recovery::restore(const FoundJournal &journal)
{
    BackgroundWork::run([self = QPointer(this), journal] {
        const auto changes =
            std::make_shared<std::optional<JournalFolder::Restorable>>(JournalFolder::take(journal));
        MainThread::post([self, journal, changes] {
            const bool isRestored = self && *changes && self->m_restore(*std::move(*changes));
            if (self && !isRestored)
                QVAlert::alertSheetWithMessageText(
                    tr("The unsaved changes to “%1” could not be restored.")
                        .arg(QFileInfo(journal.header.projectPath).fileName()),
                    tr("The project is in use. The changes are kept and offered again the next time."),
                    nullptr);
        });
    });
}

} // namespace vantrell

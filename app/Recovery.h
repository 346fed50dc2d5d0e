#pragma once

#include "journal/JournalFolder.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QWidget;

namespace vantrell
{

class DocumentWindow;
class RecoveryPanel;

/// Looks for the unsaved changes of processes that have crashed, in the background, and offers them. Main
/// thread.
class Recovery final : public QObject
{
    Q_OBJECT

public:
    using Windows = std::function<std::vector<DocumentWindow *>()>;
    /// Opens the project with its changes; false when that is not possible now.
    using Restore = std::function<bool(JournalFolder::Restorable changes)>;

    Recovery(Windows windows, Restore restore);
    ~Recovery() override;

    /// Offers those of all projects that are not open.
    void offerAll();
    /// Offers those of the window's project, over the window.
    void offerFor(DocumentWindow &window);

    /// Whether they are being looked for or offered.
    bool isOffering() const;
    /// The panel for all projects, or null.
    RecoveryPanel *panel() const;

private:
    void search(const QString &projectPath, const std::function<void(std::vector<FoundJournal>)> &found);
    RecoveryPanel *show(std::vector<FoundJournal> journals, QWidget *parent);
    void restore(const FoundJournal &journal);

    const Windows m_windows;
    const Restore m_restore;
    QPointer<RecoveryPanel> m_panel;
    int m_searches = 0;
};

} // namespace vantrell

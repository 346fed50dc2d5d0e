#include "document/widgets/WindowComparison.h"

#include "compare/widgets/CompareChoiceSheet.h"
#include "compare/widgets/CompareWindow.h"
#include "document/widgets/ComparedProject.h"
#include "document/widgets/DocumentWindow.h"
#include "document/widgets/WindowWork.h"
#include "markers/MenuTitles.h"
#include "support/log/QVException.h"
#include "support/widgets/FilePanel.h"
#include "table/widgets/TabPane.h"
#include "workbench/Workbench.h"

#include <QFileInfo>
#include <QLocale>
#include <QPointer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>

namespace vantrell
{

namespace
{

/// How long markers are added before the window handles events again.
constexpr std::chrono::milliseconds addingSlice{15};

QStringList sequenceTitles(const MyDocument &document)
{
    return MenuTitles::ofSequences(*document.sequenceMenu()).mid(1);
}

/// The element of an item of the sequence menu; null without one.
XmlNode sequenceAt(const MyDocument &document, std::int64_t item)
{
    const MenuPtr menu = document.sequenceMenu();
    return item >= 1 && item < std::int64_t(menu->size()) ? (*menu)[std::size_t(item)].element : XmlNode();
}

} // namespace

/// One comparison in the background. The threads share it with the window.
struct WindowComparison::Run {
    std::atomic<bool> isCancelled = false;
    std::shared_ptr<CutComparison> result; // null when it failed; read once it is done

    void finish()
    {
        const std::lock_guard guard(m_lock);
        m_isDone = true;
        m_done.notify_all();
    }
    /// Keeps a thread of the other document busy, so that its tree is not edited and not freed.
    void waitUntilDone()
    {
        std::unique_lock guard(m_lock);
        m_done.wait(guard, [this] { return m_isDone; });
    }

private:
    std::mutex m_lock; // guards m_isDone
    std::condition_variable m_done;
    bool m_isDone = false;
};

/// Markers that are being added, a few at a time.
struct WindowComparison::Adding {
    std::shared_ptr<CutComparison> comparison;
    std::int64_t sequenceItem = 0;
    MarkerCarrier::Progress progress;
    std::unique_ptr<RowView::Updates> updates; // the table shows them all at once
};

/// What is compared: a project of its own or that of another window; with neither the document itself.
struct WindowComparison::Session {
    std::unique_ptr<ComparedProject> loaded;
    QPointer<DocumentWindow> other;
    bool isWithWindow = false;
    QPointer<CompareWindow> view;
    std::shared_ptr<Run> run;       // null while none is under way
    std::unique_ptr<Adding> adding; // the same
    QObject context;                // of connections

    bool isWithItself() const { return !loaded && !isWithWindow; }
};

WindowComparison::WindowComparison(const WindowPart &part)
    : WindowPart(part)
{
}

WindowComparison::~WindowComparison() = default;

bool WindowComparison::mayCompare() const
{
    return m_state.stage() == WindowState::Stage::Ready && !m_state.isBusy();
}

CompareWindow *WindowComparison::view() const
{
    return m_session ? m_session->view.data() : nullptr;
}

std::vector<DocumentWindow *> WindowComparison::otherWindows() const
{
    return m_otherWindows ? m_otherWindows() : std::vector<DocumentWindow *>();
}

void WindowComparison::ask()
{
    m_window.commitEditing();
    if (m_window.refusesAfterFailedLoad() || !mayCompare())
        return;
    std::vector<QPointer<DocumentWindow>> others;
    QStringList names;
    for (DocumentWindow *const other : otherWindows()) {
        others.emplace_back(other);
        names.append(QFileInfo(other->path()).fileName());
    }
    const bool hasSequences = sequenceTitles(m_window.workbench().document()).size() > 1;
    auto *const sheet = new CompareChoiceSheet(names, hasSequences, &m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(sheet, &QDialog::accepted, &m_window, [this, sheet, others] {
        sheet->hide();
        using With = CompareChoiceSheet::With;
        if (sheet->with() == With::File) {
            runOpenPanel();
        } else if (sheet->with() == With::Itself) {
            m_window.whenIdle([this] { compareWithItself(); });
        } else {
            m_window.whenIdle([this, other = others[std::size_t(sheet->openProject())]] {
                if (other)
                    compareWithWindow(*other);
            });
        }
    });
    sheet->open();
}

void WindowComparison::runOpenPanel()
{
    FilePanel::runForOpening(
        {.window = &m_window,
         .title = tr("Compare with"),
         .folder = m_window.folder(),
         .filter = tr("Final Cut Pro 7 projects and XML files (*.fcp *.xml *.FCP *.XML)"),
         .acceptLabel = tr("Compare")},
        [this](const QStringList &paths) {
            m_window.whenIdle([this, paths] { compareWithFile(paths.value(0)); });
        });
}

/// Ends the comparison there was; false when there can be no other one now.
bool WindowComparison::begin()
{
    if (!mayCompare())
        return false;
    close();
    m_session = std::make_unique<Session>();
    return true;
}

void WindowComparison::compareWithFile(const QString &path)
{
    for (DocumentWindow *const other : otherWindows()) {
        if (other->path() == QFileInfo(path).absoluteFilePath()) {
            compareWithWindow(*other); // as it is there, with what has not been saved
            return;
        }
    }
    if (m_window.path() == QFileInfo(path).absoluteFilePath()) {
        compareWithItself();
        return;
    }
    if (!begin())
        return;
    m_session->loaded = std::make_unique<ComparedProject>();
    QObject::connect(m_session->loaded.get(), &ComparedProject::opened, &m_session->context,
                     [this](bool isOpen, const QString &message) { fileOpened(isOpen, message); });
    m_work.begin(tr("Opening “%1”…").arg(QFileInfo(path).fileName()), WindowState::Work::Expendable, [this] {
        m_session.reset();
        m_work.end();
    });
    m_session->loaded->open(path);
}

void WindowComparison::fileOpened(bool isOpen, const QString &message)
{
    m_work.end();
    const QString path = m_session->loaded->path();
    const QString name = QFileInfo(path).fileName();
    if (isOpen && !m_state.isClosed()) {
        show(name);
        return;
    }
    m_session->loaded.release()->deleteLater(); // which is the sender
    m_session.reset();
    if (!m_state.isClosed())
        m_window.showFailure(tr("“%1” could not be opened.").arg(name), message);
}

void WindowComparison::compareWithWindow(DocumentWindow &other)
{
    if (!begin())
        return;
    if (other.state() != DocumentWindow::State::Ready) {
        m_session.reset();
        m_window.showFailure(tr("The project “%1” is not ready.").arg(QFileInfo(other.path()).fileName()),
                             tr("Wait until it is loaded."));
        return;
    }
    m_session->other = &other;
    m_session->isWithWindow = true;
    QObject::connect(&other, &DocumentWindow::sessionEnding, &m_session->context, [this] {
        m_session->other = nullptr;
        if (m_session->run)
            m_session->run->isCancelled = true;
        if (m_session->view)
            m_session->view->noteOtherGone();
    });
    show(QFileInfo(other.path()).fileName());
}

void WindowComparison::compareWithItself()
{
    if (begin())
        show(QFileInfo(m_window.path()).fileName());
}

MyDocument *WindowComparison::otherDocument() const
{
    if (m_session->loaded)
        return &m_session->loaded->document();
    if (m_session->isWithWindow)
        return m_session->other ? m_session->other->document() : nullptr;
    return m_window.document();
}

void WindowComparison::show(const QString &otherName)
{
    MyDocument &own = m_window.workbench().document();
    MyDocument &other = *otherDocument();
    const bool isSame = m_session->isWithItself();
    const QStringList ownTitles = sequenceTitles(own);
    const QStringList otherTitles = sequenceTitles(other);
    const QString ownName = QFileInfo(m_window.path()).fileName();
    const qsizetype least = isSame ? 2 : 1;
    if (ownTitles.size() < least || otherTitles.size() < least) {
        const QString name = ownTitles.size() < least ? ownName : otherName;
        m_session->context.disconnect();
        if (m_session->loaded)
            m_session->loaded.release()->deleteLater(); // it may be the sender
        m_session.reset();
        m_window.showFailure(isSame ? tr("“%1” has no two sequences to compare.").arg(name)
                                    : tr("“%1” has no sequence to compare.").arg(name),
                             QString());
        return;
    }
    const CutGuess guess = isSame ? CutGuess::inProject(*own.sequenceMenu())
                                  : CutGuess::inProjects(*other.sequenceMenu(), *own.sequenceMenu());
    auto *const view = new CompareWindow({ownName, ownTitles}, {otherName, otherTitles}, isSame, guess,
                                         m_window.folder(), &m_window);
    m_session->view = view;
    QObject *const context = &m_session->context;
    QObject::connect(view, &CompareWindow::comparisonWanted, context, [this] { compare(); });
    QObject::connect(view, &CompareWindow::cancelWanted, context, [this] {
        if (m_session->run)
            m_session->run->isCancelled = true;
    });
    QObject::connect(view, &CompareWindow::addWanted, context, [this] { addMarkers(); });
    QObject::connect(
        view, &QObject::destroyed, context,
        [this] {
            if (m_session->run)
                m_session->run->isCancelled = true; // what is left ends with it
            else if (!m_session->adding)
                close();
        },
        Qt::QueuedConnection);
    const auto noteChanged = [this] {
        if (m_session->view && !m_session->adding)
            m_session->view->noteChanged();
    };
    QObject::connect(&own, &MyDocument::historyChanged, context, noteChanged);
    if (&other != &own)
        QObject::connect(&other, &MyDocument::historyChanged, context, noteChanged);
    view->show();
    compare();
}

/// Why the projects can neither be compared nor edited now; null when they can.
QString WindowComparison::whyNotNow() const
{
    const QString text = tr("“%1” is busy. Try again when that is done.");
    if (!m_window.mayEdit())
        return text.arg(QFileInfo(m_window.path()).fileName());
    if (m_session->other && !m_session->other->mayEdit())
        return text.arg(QFileInfo(m_session->other->path()).fileName());
    return QString();
}

void WindowComparison::compare()
{
    CompareWindow *const view = m_session->view;
    MyDocument *const own = m_window.document();
    MyDocument *const other = otherDocument();
    if (!view || !own || !other || m_session->run)
        return;
    m_window.commitEditing();
    if (m_session->other)
        m_session->other->commitEditing();
    if (const QString reason = whyNotNow(); !reason.isEmpty()) {
        view->comparisonFailed(reason);
        return;
    }
    MyDocument *const older = view->isOwnNew() ? other : own;
    MyDocument *const newer = view->isOwnNew() ? own : other;
    const XmlNode before = sequenceAt(*older, view->oldSequence());
    const XmlNode after = sequenceAt(*newer, view->newSequence());
    const auto run = std::make_shared<Run>();
    m_session->run = run;
    view->beginComparing();
    const auto cancel = [run] { run->isCancelled = true; };
    m_work.begin(tr("Comparing…"), WindowState::Work::Expendable, cancel);
    m_work.hideSheet(); // the comparison's window shows the progress
    const QPointer otherWindow(m_session->other);
    if (otherWindow)
        otherWindow->beginReading(cancel);
    const auto work = [run, before, after] {
        guarded("WindowComparison::compare", [&] {
            run->result =
                std::make_shared<CutComparison>(CutComparison::of(before, after, &run->isCancelled));
        });
        run->finish();
    };
    own->runInBackground(work, [this, run] { compared(run); });
    if (other != own) {
        const auto done = [otherWindow] {
            if (otherWindow)
                otherWindow->endReading();
        };
        other->runInBackground([run] { run->waitUntilDone(); }, done);
    }
}

void WindowComparison::compared(const std::shared_ptr<Run> &run)
{
    m_work.end();
    if (!m_session || m_session->run != run)
        return;
    m_session->run.reset();
    CompareWindow *const view = m_session->view;
    if (!view) {
        close();
        return;
    }
    if (run->isCancelled)
        view->comparisonFailed(QString());
    else if (!run->result)
        view->comparisonFailed(tr("The cuts could not be compared; the log tells why."));
    else
        view->showComparison(std::move(run->result));
    if (m_session->loaded && !m_session->loaded->notice().isEmpty() && !run->isCancelled)
        view->showRemark(m_session->loaded->notice());
}

void WindowComparison::addMarkers()
{
    CompareWindow *const view = m_session->view;
    MyDocument *const document = m_window.document();
    if (!view || !view->comparison() || !view->isOwnNew() || !document || m_session->adding)
        return;
    m_window.commitEditing();
    const std::shared_ptr<CutComparison> comparison = view->comparison();
    QString reason = whyNotNow();
    if (reason.isEmpty() && !(sequenceAt(*document, view->newSequence()) == comparison->after.sequence))
        reason = tr("The sequences have changed. Compare again first.");
    if (!reason.isEmpty()) {
        m_window.showFailure(tr("The markers could not be added."), reason);
        return;
    }
    m_session->adding = std::make_unique<Adding>();
    Adding &adding = *m_session->adding;
    adding.comparison = comparison;
    adding.sequenceItem = view->newSequence();
    adding.updates = std::make_unique<RowView::Updates>(document->rowView(Tab::Markers));
    view->setAdding(true);
    if (m_session->other)
        m_session->other->beginReading({});
    m_work.begin(tr("Adding markers…"), WindowState::Work::Fixed);
    addSome();
}

void WindowComparison::addSome()
{
    MyDocument &document = m_window.workbench().document();
    if (document.isClosing())
        return;
    Adding &adding = *m_session->adding;
    std::vector<CarriedMarker> &markers = adding.comparison->markers;
    const bool isWhole = guarded("WindowComparison::addSome", [&] {
        MarkerCarrier::carrySome(markers, adding.comparison->after, document,
                                 m_window.workbench().markerEditor(), adding.sequenceItem, adding.progress,
                                 addingSlice);
    });
    if (!isWhole || adding.progress.next >= markers.size()) {
        finishAdding();
        return;
    }
    m_work.makeFixed(tr("Adding markers…"), adding.progress.next, markers.size());
    QTimer::singleShot(0, &m_session->context, [this] { addSome(); });
}

void WindowComparison::finishAdding()
{
    const std::shared_ptr<CutComparison> comparison = m_session->adding->comparison;
    const std::size_t count = m_session->adding->progress.added;
    m_session->adding->updates.reset();
    bool hasClipMarkers = false;
    for (CarriedMarker &marker : comparison->markers) {
        hasClipMarkers = hasClipMarkers || (marker.isAdded && !marker.isThere && marker.place.event);
        marker.isThere = marker.isThere || marker.isAdded;
    }
    m_session->adding.reset();
    if (m_session->other)
        m_session->other->endReading();
    m_work.end();
    if (CompareWindow *const view = m_session->view) {
        view->setAdding(false);
        view->noteAdded(count);
    } else {
        close();
    }
    if (m_state.isClosed())
        return;
    if (m_window.selectedTab() != Tab::Markers)
        m_window.toolbarMarkers();
    m_window.pane(Tab::Markers)
        .showMessage(
            count == 1 ? tr("1 marker added from the old cut")
                       : tr("%1 markers added from the old cut").arg(QLocale().toString(qulonglong(count))));
    if (hasClipMarkers)
        m_window.listMarkersAgain(); // each under the clip that holds it
}

void WindowComparison::close()
{
    if (!m_session)
        return;
    if (m_session->run)
        m_session->run->isCancelled = true;
    if (m_session->adding && m_session->other)
        m_session->other->endReading();
    const std::unique_ptr<Session> ended = std::move(m_session);
    delete ended->view;
}

} // namespace vantrell

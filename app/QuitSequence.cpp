#include "app/QuitSequence.h"

#include "document/widgets/DocumentWindow.h"

#include <QFileInfo>

namespace vantrell
{

namespace
{

const QString quitQuestion = QStringLiteral("quitQuestionDidEnd:returnCode:contextInfo:");
constexpr std::size_t listedProjects = 6;

} // namespace

QuitSequence::QuitSequence(std::function<std::vector<DocumentWindow *>()> windows, QObject *parent)
    : QObject(parent)
    , m_windows(std::move(windows))
{
}

void QuitSequence::start()
{
    for (DocumentWindow *const window : m_windows())
        window->forgetGivenUpChanges();
    proceed();
}

void QuitSequence::proceed()
{
    if (m_stage != Stage::Waiting || waitsForBusyWindow())
        return;
    const std::vector<DocumentWindow *> changed = changedWindows();
    if (changed.size() > 1) {
        m_stage = Stage::Asking;
        ask(changed);
    } else {
        m_stage = Stage::Reviewing;
        settleNext();
    }
}

/// Whether a window is still busy; proceed() is called again once it is not.
bool QuitSequence::waitsForBusyWindow()
{
    for (DocumentWindow *const window : m_windows()) {
        window->giveUpForClosing();
        if (!window->isBusy())
            continue;
        const auto options = Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection);
        connect(window, &DocumentWindow::menusChanged, this, &QuitSequence::proceed, options);
        connect(window, &DocumentWindow::closed, this, &QuitSequence::proceed, options);
        return true;
    }
    return false;
}

std::vector<DocumentWindow *> QuitSequence::changedWindows() const
{
    std::vector<DocumentWindow *> changed;
    for (DocumentWindow *const window : m_windows()) {
        if (window->hasUnsettledChanges())
            changed.push_back(window);
    }
    return changed;
}

void QuitSequence::ask(const std::vector<DocumentWindow *> &changed)
{
    QStringList names;
    for (const DocumentWindow *const window : changed) {
        if (std::size_t(names.size()) == listedProjects) {
            names.append(QStringLiteral("…"));
            break;
        }
        names.append(QFileInfo(window->path()).fileName());
    }
    QVAlert::alertSheetWithMessageText(
        tr("Do you want to save the changes made to %1 projects before quitting?").arg(changed.size()),
        tr("Save All"), tr("Review…"), tr("Cancel"), names.join(QLatin1Char('\n')), nullptr, this,
        quitQuestion, false, nullptr);
}

bool QuitSequence::respondsTo(const QString &selector) const
{
    return selector == quitQuestion;
}

void QuitSequence::perform(const QString &, QVAlert *, int code)
{
    if (code != AlertAnswer::Default && code != AlertAnswer::Alternate) {
        Q_EMIT cancelled();
        return;
    }
    m_stage = code == AlertAnswer::Default ? Stage::Saving : Stage::Reviewing;
    settleNext();
}

void QuitSequence::settleNext()
{
    const std::vector<DocumentWindow *> changed = changedWindows();
    if (changed.empty()) {
        Q_EMIT settled();
        return;
    }
    DocumentWindow *const window = changed.front();
    connect(window, &DocumentWindow::changesSettled, this, &QuitSequence::windowSettled,
            Qt::SingleShotConnection);
    // What was edited after it was saved is asked about.
    const bool isFirst = m_saved.insert(window).second;
    window->settleChanges(m_stage == Stage::Saving && isFirst ? DocumentWindow::Settling::Save
                                                              : DocumentWindow::Settling::Ask);
}

void QuitSequence::windowSettled(bool isSettled)
{
    if (isSettled)
        settleNext();
    else
        Q_EMIT cancelled();
}

} // namespace vantrell

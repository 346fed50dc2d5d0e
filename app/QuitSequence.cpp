#include "app/QuitSequence.h"

#include "document/widgets/DocumentWindow.h"
#include "support/widgets/AlertBox.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <map>

namespace vantrell
{

namespace
{

constexpr std::size_t listedProjects = 6;

} // namespace

QuitSequence::QuitSequence(std::function<std::vector<DocumentWindow *>()> windows, QObject *parent)
    : QObject(parent)
    , m_windows(std::move(windows))
{
}

QuitSequence::~QuitSequence()
{
    delete m_question;
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
    m_question = new QMessageBox;
    QMessageBox &box = *m_question;
    setUpAlert(box,
               tr("Do you want to save the changes made to %1 projects before quitting?").arg(changed.size()),
               names.join(QLatin1Char('\n')));
    QPushButton *const save = box.addButton(tr("Save All"), QMessageBox::AcceptRole);
    box.setDefaultButton(save);
    box.setEscapeButton(box.addButton(tr("Cancel"), QMessageBox::RejectRole));
    const std::map<QAbstractButton *, Stage> stages{
        {save, Stage::Saving},
        {box.addButton(tr("Review…"), QMessageBox::ActionRole), Stage::Reviewing},
        {box.addButton(tr("Discard All"), QMessageBox::DestructiveRole), Stage::Discarding}};
    connect(&box, &QDialog::finished, this, [this, &box, stages] {
        box.deleteLater();
        const auto stage = stages.find(box.clickedButton());
        if (stage == stages.end()) {
            Q_EMIT cancelled();
            return;
        }
        m_stage = stage->second;
        settleNext();
    });
    box.show();
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
    // What was edited after it was saved or discarded is asked about.
    auto settling = DocumentWindow::Settling::Ask;
    if (m_settled.insert(window).second) {
        if (m_stage == Stage::Saving)
            settling = DocumentWindow::Settling::Save;
        else if (m_stage == Stage::Discarding)
            settling = DocumentWindow::Settling::Discard;
    }
    window->settleChanges(settling);
}

void QuitSequence::windowSettled(bool isSettled)
{
    if (isSettled)
        settleNext();
    else
        Q_EMIT cancelled();
}

} // namespace vantrell

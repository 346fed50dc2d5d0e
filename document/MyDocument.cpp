#include "document/MyDocument.h"

#include "document/DocumentJournal.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVException.h"
#include "timecode/QVTimecode.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

#include <QFileInfo>

#include <utility>

namespace vantrell
{

MyDocument::MyDocument(DocumentInterface &interface, Services services)
    : m_interface(interface)
    , m_services(std::move(services))
    , m_mainThread(std::make_shared<MainThreadGate>())
    , m_sequenceMenu(std::make_shared<Menu>(Menu{{QStringLiteral("(none)"), QString(), XmlNode()}}))
{
    for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
        connect(&rowView(tab), &RowView::willBecomeVisible, this, [this, tab] {
            const Tab visible = std::exchange(m_tableTab, tab);
            rowView(visible).hide();
        });
    }
    rowView(m_tableTab).show({}, RowView::Order::Document);
}

MyDocument::~MyDocument()
{
    close();
}

void MyDocument::close()
{
    const bool isFirstCall = !m_closing.exchange(true);
    m_mainThread->close();
    if (isFirstCall && m_services.closing)
        m_services.closing();
    if (m_loader.joinable())
        m_loader.join();
    for (std::thread &inventory : m_inventories) {
        if (inventory.joinable())
            inventory.join();
    }
    if (m_saver.joinable())
        m_saver.join();
}

void MyDocument::setFileURL(const QUrl &url)
{
    m_fileURL = url;
    if (!m_damagedFile.isNull() && QFileInfo(url.toLocalFile()) == QFileInfo(m_damagedFile))
        m_damagedFile = QString();
    if (m_written.path == url.toLocalFile())
        m_knownFile->note(m_written.path, m_written.stamp);
}

std::optional<QString> MyDocument::valueForXPath(const QString &query, XmlNode parentNode)
{
    const XmlNode node = QVXMLParser::nodeForQuery(query, parentNode);
    if (!node)
        return std::nullopt;
    return node.stringValue();
}

void MyDocument::populateSequences()
{
    static const XmlQuery single(QStringLiteral("./xmeml[1]/sequence[1]"));
    static const XmlQuery inProject(QStringLiteral("./xmeml[1]/project[1]/children[1]//sequence"));
    auto menu = std::make_shared<Menu>();
    menu->push_back({QStringLiteral("(none)"), QString(), XmlNode()});
    const XmlQuery &query = m_xmlType == 1 ? single : inProject;
    for (const XmlNode sequence : query.evaluate(xmlNode()).nodes) {
        const QString title = QVXMLParser::nameForNode(sequence).value_or(QStringLiteral("Unknown sequence"));
        menu->push_back({title, QStringLiteral("sequence"), sequence});
    }
    {
        const std::lock_guard lock(m_lock);
        m_sequenceMenu = menu;
    }
    m_mainThread->runAndWait([this] { Q_EMIT sequenceMenuChanged(); });
}

MenuPtr MyDocument::sequenceMenu() const
{
    const std::lock_guard lock(m_lock);
    return m_sequenceMenu;
}

MenuPtr MyDocument::clipMenuForSequence(XmlNode sequence)
{
    const std::lock_guard lock(m_lock);
    return m_clipMenus.menuForSequence(sequence);
}

std::shared_ptr<const QStringList> MyDocument::clipIDsForSequence(XmlNode sequence)
{
    const std::lock_guard lock(m_lock);
    return m_clipMenus.idsForSequence(sequence);
}

QString MyDocument::timecodeFromFrameCount(std::int32_t frames, const RowRecord &object)
{
    return QVTimecode::timecodeFromFrameCount(
        quint64(qint64(frames)), object.get(TimecodeKey::timebase), object.get(TimecodeKey::ntsc),
        object.get(TimecodeKey::dropFrame), quint64(object.get(TimecodeKey::startFrame)));
}

std::int64_t MyDocument::frameCountFromTimecode(const QString &timecode, const RowRecord &object)
{
    return std::int64_t(QVTimecode::frameCountFromTimecode(
        timecode, object.get(TimecodeKey::timebase), object.get(TimecodeKey::ntsc),
        object.get(TimecodeKey::dropFrame), quint64(object.get(TimecodeKey::startFrame))));
}

void MyDocument::setPopulating(Tab tab, bool populating)
{
    rowView(tab).setPopulating(populating);
    m_mainThread->runAndWait([&] { Q_EMIT rowView(tab).populatingChanged(populating); });
}

void MyDocument::populate(Tab tab, const char *operation, const std::function<void()> &build)
{
    setPopulating(tab, true);
    if (!guarded(operation, build))
        noteIncomplete();
    setPopulating(tab, false);
}

bool MyDocument::rebuildRows(Tab tab)
{
    return rowView(tab).rebuild(*m_mainThread, [this, tab] { return m_viewState.selectedTab == tab; });
}

bool MyDocument::isSelected(Tab tab)
{
    bool selected = false;
    m_mainThread->runAndWait([&] { selected = m_viewState.selectedTab == tab; });
    return selected;
}

RowList MyDocument::selectedRecords(Tab tab) const
{
    RowList records;
    const RowList &rows = rowsOnShow(tab);
    for (const std::size_t row : m_interface.selectedRows(tab)) {
        if (row < rows.size())
            records.push_back(rows[row]);
    }
    return records;
}

void MyDocument::setLabel(Label label, const QString &text)
{
    m_labels.insert(label, text);
    Q_EMIT labelChanged(label, text);
}

void MyDocument::addModifiedSequenceUUID(const QString &uuid)
{
    m_marks.addSequence(uuid);
}

void MyDocument::markSequenceModified(const QString &uuid)
{
    noteChange([&] { m_marks.markSequence(uuid); });
}

void MyDocument::clearModifiedSequenceUUIDs()
{
    m_marks.clearSequences();
}

void MyDocument::updateChangeCount()
{
    noteChange([this] { m_marks.noteChange(); });
}

template <typename Note>
void MyDocument::noteChange(Note note)
{
    const bool wasEdited = isEdited();
    note();
    if (!wasEdited)
        Q_EMIT editedChanged(true);
    if (!m_edit && m_journal)
        m_journal->stop();
    if (m_edit || !(m_history.canUndo() || m_history.canRedo()))
        return;
    m_history.clear();
    Q_EMIT historyChanged();
}

void MyDocument::clearChangeCount()
{
    m_marks.noteSaved();
    const QString path = m_fileURL.toLocalFile();
    const bool isFile = m_written.order && m_written.path == path;
    if (m_journal && isFile)
        m_journal->noteSaved({path, DocumentType::finalCutProXMLFile, m_knownFile},
                             std::exchange(m_written.order, nullptr));
    else if (m_journal)
        m_journal->noteSent();
    Q_EMIT editedChanged(false);
}

void MyDocument::endJournalIfClean()
{
    if (m_journal && !isEdited())
        m_journal->noteClean();
}

void MyDocument::beginSending()
{
    m_marks.beginSending();
    m_isReadToBeSent = true;
    Q_EMIT editingAllowedChanged();
}

void MyDocument::endReadingToSend()
{
    if (std::exchange(m_isReadToBeSent, false))
        Q_EMIT editingAllowedChanged();
}

void MyDocument::endSending(SendResult result)
{
    const bool wasSending = isSending();
    m_marks.endSending(result != SendResult::Failed, result == SendResult::SequencesSent);
    endReadingToSend();
    if (wasSending && result != SendResult::Failed && !isEdited()) {
        if (m_journal)
            m_journal->noteSent();
        Q_EMIT editedChanged(false);
    }
}

void MyDocument::showAlert(const QString &messageText, const QString &informativeText)
{
    AlertParent *parentWindow = nullptr;
    if (m_mainThread->runAndWait([&] { parentWindow = m_interface.alertParent(); }))
        showAlertUntil(messageText, informativeText, parentWindow, m_mainThread);
}

void MyDocument::startProgress()
{
    m_mainThread->runAndWait([this] { m_interface.startProgress(); });
}

void MyDocument::updateProgressLabel(const QString &text)
{
    m_mainThread->runAndWait([this, &text] { m_interface.updateProgressLabel(text); });
}

void MyDocument::endProgress()
{
    m_mainThread->runAndWait([this] { m_interface.endProgress(); });
}

void MyDocument::cancelProgress()
{
    endProgress();
}

} // namespace vantrell

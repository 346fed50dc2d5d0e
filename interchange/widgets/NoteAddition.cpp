#include "interchange/widgets/NoteAddition.h"

#include "document/MyDocument.h"

#include <QTimer>

#include <chrono>
#include <utility>

namespace vantrell
{

namespace
{

/// How long notes are added before the window handles events again.
constexpr std::chrono::milliseconds additionSlice{15};

} // namespace

NoteAddition::NoteAddition(MyDocument &document, MarkerEditor &editor, std::vector<PlannedNote> notes,
                           std::int64_t item, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_importer(document, editor)
    , m_notes(std::move(notes))
    , m_item(item)
{
}

void NoteAddition::start()
{
    m_updates = std::make_unique<RowView::Updates>(m_document.rowView(Tab::Markers));
    QTimer::singleShot(0, this, &NoteAddition::addSome);
}

void NoteAddition::addSome()
{
    if (m_document.isClosing() || m_document.mainThread()->isClosed())
        return;
    const bool goesOn = m_importer.addSome(m_notes, m_item, m_progress, additionSlice);
    if (goesOn && m_progress.next < m_notes.size()) {
        Q_EMIT progressed(m_progress.next, m_notes.size());
        QTimer::singleShot(0, this, &NoteAddition::addSome);
        return;
    }
    m_updates.reset();
    Q_EMIT ended();
}

} // namespace vantrell

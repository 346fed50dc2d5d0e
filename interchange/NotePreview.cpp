#include "interchange/NotePreview.h"

#include "document/MyDocument.h"
#include "interchange/notes/NoteReader.h"
#include "markers/MenuTitles.h"
#include "support/threads/BackgroundWork.h"
#include "timecode/QVTimecode.h"

#include <QLocale>

#include <algorithm>

namespace vantrell
{

namespace
{

QString titleOf(NoteShape shape)
{
    switch (shape) {
    case NoteShape::AvidText:
        return NotePreview::tr("Avid markers");
    case NoteShape::AvidXml:
        return NotePreview::tr("Avid markers (XML)");
    case NoteShape::Premiere:
        return NotePreview::tr("Premiere Pro markers");
    case NoteShape::Audition:
        return NotePreview::tr("Audition markers");
    case NoteShape::ResolveEdl:
        return NotePreview::tr("Resolve markers (EDL)");
    case NoteShape::EdlLocators:
        return NotePreview::tr("EDL with locators");
    case NoteShape::ProTools:
        return NotePreview::tr("Pro Tools session text");
    case NoteShape::ReviewCsv:
        return NotePreview::tr("review notes");
    case NoteShape::Chapters:
        return NotePreview::tr("chapters");
    case NoteShape::Fcpxml:
        return NotePreview::tr("Final Cut Pro X XML");
    case NoteShape::Fcp:
        return NotePreview::tr("Final Cut Pro marker list");
    case NoteShape::Table:
        break;
    }
    return NotePreview::tr("table");
}

QString delimiterText(const QString &delimiter)
{
    if (delimiter == QStringLiteral("tab"))
        return NotePreview::tr("separated by tabs");
    if (delimiter == QStringLiteral("comma"))
        return NotePreview::tr("separated by commas");
    return delimiter.isEmpty() ? QString() : NotePreview::tr("separated by semicolons");
}

QString counted(std::size_t count)
{
    return QLocale().toString(qulonglong(count));
}

QString timecodeOfFrame(qint64 frame, const NoteRate &rate)
{
    return QVTimecode::timecodeFromFrameCount(quint64(frame), rate.timebase, rate.ntsc, rate.dropFrame, 0);
}

} // namespace

const std::vector<NoteRate> &usualNoteRates()
{
    static const std::vector<NoteRate> rates = {
        {24, true, false},  {24, false, false}, {25, false, false}, {30, true, false}, {30, true, true},
        {30, false, false}, {50, false, false}, {60, true, false},  {60, true, true},  {60, false, false}};
    return rates;
}

QString titleOf(const NoteRate &rate)
{
    const NoteRate plain{rate.timebase, rate.ntsc, false};
    return rate.dropFrame ? NotePreview::tr("%1 drop frame").arg(plain.name()) : plain.name();
}

/// One plan on its way through another thread.
struct NotePreview::Plan {
    NoteSource source;
    bool rereads = false;
    NoteSequence target;
    NoteMatches matches;
    NoteSettings settings;

    NoteMeaning meaning = NoteMeaning::Guessed;
    std::optional<std::vector<PlannedNote>> notes = std::nullopt;
    std::vector<NoteColorUse> colors = {};

    void make()
    {
        if (rereads)
            source.list = std::make_shared<const NoteList>(
                NoteReader::readAgain(*source.list, source.bytes, settings.choices));
        meaning = meaningOf(*source.list, target, settings);
        NoteSettings resolved = settings;
        resolved.meaning = meaning;
        notes = planNotes(*source.list, target, resolved, matches);
        colors = colorsOf(*source.list);
    }
};

NotePreview::NotePreview(MyDocument &document, MarkerEditor &editor, NoteSource source, std::int64_t item,
                         QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_importer(document, editor)
    , m_source(std::move(source))
{
    m_settings.choices = m_source.choices;
    setSequence(m_importer.sequenceNamedBy(m_source.path, list()).value_or(item));
}

NotePreview::~NotePreview()
{
    *m_isWanted = false;
}

QString NotePreview::description() const
{
    QStringList parts = {titleOf(list().shape)};
    for (const QString &part : {delimiterText(list().delimiter), list().encoding})
        if (!part.isEmpty())
            parts.append(part);
    if (list().rate)
        parts.append(titleOf(*list().rate));
    parts.append(m_notes.size() == 1 ? tr("1 row") : tr("%1 rows").arg(counted(m_notes.size())));
    return tr("Recognized as %1").arg(parts.join(QStringLiteral(", ")));
}

QString NotePreview::columnTitle(std::size_t column) const
{
    const NoteRole &role = list().columns[column];
    const QString title =
        list()
            .headers.value(qsizetype(column), role.kind == NoteRole::Field ? role.title : QString())
            .simplified();
    return title.isEmpty() ? QStringLiteral("Column %1").arg(column + 1) : title;
}

std::vector<NotePreview::Column> NotePreview::columns() const
{
    std::vector<Column> columns;
    for (std::size_t i = 0; i < list().columns.size(); ++i) {
        Column column{columnTitle(i), list().examples.value(qsizetype(i)), list().columns[i]};
        const auto isMeant = [&](const NoteColumnChoice &choice) { return choice.means(i, list().headers); };
        const bool isChosen = std::any_of(m_settings.choices.begin(), m_settings.choices.end(), isMeant);
        if (column.role.kind == NoteRole::ColorValue || (column.role.kind == NoteRole::Field && !isChosen))
            column.role = {};
        // A list without a table has a value for each role.
        for (std::size_t row = 0;
             column.example.isEmpty() && row < std::min<std::size_t>(list().rows.size(), 50); ++row)
            column.example = list().rows[row].value(column.role.kind).left(80).toString().simplified();
        columns.push_back(std::move(column));
    }
    return columns;
}

std::vector<NoteColorUse> NotePreview::colors() const
{
    std::vector<NoteColorUse> colors = m_colors;
    for (NoteColorUse &color : colors)
        color.color = m_settings.colors.value(color.key, color.color);
    return colors;
}

QStringList NotePreview::sequences() const
{
    return MenuTitles::ofSequences(*m_document.sequenceMenu()).mid(1);
}

QString NotePreview::startTimecode() const
{
    return timecodeOfFrame(m_target.startFrame, m_target.rate);
}

void NotePreview::setSequence(std::int64_t item)
{
    m_item = item;
    m_target = m_importer.sequenceAt(item);
    m_matches = m_importer.matchesOf(item);
    refresh();
}

void NotePreview::setMeaning(NoteMeaning meaning, const QString &timecode)
{
    m_settings.meaning = meaning;
    m_settings.timecode = timecode.trimmed();
    m_meaning = meaning;
    refresh();
}

void NotePreview::setRate(const std::optional<NoteRate> &rate)
{
    m_settings.rate = rate;
    refresh();
}

void NotePreview::setRole(std::size_t column, NoteRole::Kind kind)
{
    const bool isShared = kind == NoteRole::Field || kind == NoteRole::Ignore;
    std::erase_if(m_settings.choices, [&](const NoteColumnChoice &choice) {
        return choice.means(column, list().headers) || (!isShared && choice.role.kind == kind);
    });
    const QString title = list().headers.value(qsizetype(column)).trimmed();
    const bool isUnique = !title.isEmpty() && list().headers.count(title) == 1;
    const NoteRole role{kind, kind == NoteRole::Field ? columnTitle(column) : QString()};
    m_settings.choices.push_back({isUnique ? title : QString::number(column + 1), role});
    refresh(true);
}

void NotePreview::setColor(const QString &key, int color)
{
    m_settings.colors.insert(key, color);
    refresh();
}

void NotePreview::refresh(bool rereads)
{
    m_rereads = m_rereads || rereads;
    if (m_isPlanning)
        m_isOutdated = true;
    else
        start();
}

void NotePreview::start()
{
    const auto plan = std::make_shared<Plan>(
        Plan{m_source, std::exchange(m_rereads, false), m_target, m_matches, m_settings});
    m_isPlanning = true;
    m_isOutdated = false;
    BackgroundWork::run(
        [plan] {
            plan->make();
            return Result<void>();
        },
        m_document.mainThread(),
        [this, plan, isWanted = m_isWanted](const Result<void> &made) {
            if (*isWanted)
                take(*plan, made);
        });
}

void NotePreview::take(Plan &plan, const Result<void> &made)
{
    m_isPlanning = false;
    m_failure = made.message();
    if (made) {
        m_source.list = plan.source.list;
        m_colors = std::move(plan.colors);
        if (m_settings.meaning == NoteMeaning::Guessed)
            m_meaning = plan.meaning;
        if (plan.notes)
            m_notes = std::move(*plan.notes);
        else
            m_failure = tr("“%1” is no timecode").arg(plan.settings.timecode);
        if (m_checks.size() != m_notes.size())
            m_checks.assign(m_notes.size(), Check::AsPlanned);
    }
    if (m_isOutdated)
        start();
    Q_EMIT planned();
}

bool NotePreview::isChecked(std::size_t row) const
{
    if (!mayCheck(row))
        return false;
    const bool asPlanned = m_notes[row].state == PlannedNote::State::Add;
    return m_checks[row] == Check::AsPlanned ? asPlanned : m_checks[row] == Check::On;
}

bool NotePreview::mayCheck(std::size_t row) const
{
    const PlannedNote::State state = m_notes[row].state;
    return state == PlannedNote::State::Add || state == PlannedNote::State::There;
}

void NotePreview::setChecked(const std::vector<std::size_t> &rows, bool isChecked)
{
    for (const std::size_t row : rows) {
        if (mayCheck(row) && this->isChecked(row) != isChecked)
            m_checks[row] = isChecked ? Check::On : Check::Off;
    }
    Q_EMIT checksChanged();
}

std::size_t NotePreview::checkedCount() const
{
    std::size_t count = 0;
    for (std::size_t row = 0; row < m_notes.size() && m_failure.isEmpty(); ++row)
        count += isChecked(row) ? 1 : 0;
    return count;
}

QString NotePreview::timecode(std::size_t row) const
{
    const PlannedNote &note = m_notes[row];
    const qint64 frame = note.in + m_target.startFrame;
    if (note.state == PlannedNote::State::Unreadable || frame < 0)
        return QString();
    return timecodeOfFrame(frame, m_target.rate);
}

QString NotePreview::duration(std::size_t row) const
{
    const PlannedNote &note = m_notes[row];
    return note.state == PlannedNote::State::Unreadable ? QString()
                                                        : timecodeOfFrame(note.duration, m_target.rate);
}

QString NotePreview::remark(std::size_t row) const
{
    const PlannedNote &note = m_notes[row];
    QStringList parts;
    switch (note.state) {
    case PlannedNote::State::Unreadable:
        return note.reason;
    case PlannedNote::State::Outside:
        parts.append(note.in < 0 ? tr("Outside the sequence: before its first frame")
                                 : tr("Outside the sequence: after its last frame"));
        break;
    case PlannedNote::State::There:
        parts.append(isChecked(row) ? tr("Already there; will be added again") : tr("Already there"));
        break;
    case PlannedNote::State::Add:
        break;
    }
    if (note.label && note.state != PlannedNote::State::Outside) {
        const QString shown = timecode(row);
        const qint64 seconds = note.label->seconds;
        const QString read = QVTimecode::formatHours(seconds / 3600 % 24, seconds / 60 % 60, seconds % 60,
                                                     note.label->frames, true);
        if (read != shown)
            parts.append(tr("Shown as %1").arg(shown));
    }
    if (note.isChapter)
        parts.append(tr("Chapter"));
    for (const auto &[title, value] : note.fields)
        parts.append(QStringLiteral("%1: %2").arg(title, value.simplified()));
    return parts.join(QStringLiteral("; "));
}

QString NotePreview::summary() const
{
    if (!m_failure.isEmpty())
        return m_failure;
    std::size_t added = 0;
    std::size_t leftOut = 0;
    std::size_t there = 0;
    std::size_t outside = 0;
    std::size_t unreadable = 0;
    for (std::size_t row = 0; row < m_notes.size(); ++row) {
        const PlannedNote::State state = m_notes[row].state;
        if (isChecked(row))
            ++added;
        else if (state == PlannedNote::State::Add)
            ++leftOut;
        else
            ++(state == PlannedNote::State::There     ? there
               : state == PlannedNote::State::Outside ? outside
                                                      : unreadable);
    }
    const QString total = counted(m_notes.size());
    QString text = m_notes.size() == 1 ? tr("%1 of 1 note will be added").arg(added)
                                       : tr("%1 of %2 notes will be added").arg(counted(added), total);
    QStringList others;
    const auto tell = [&others](std::size_t count, const QString &one, const QString &many) {
        if (count > 0)
            others.append(count == 1 ? one : many.arg(counted(count)));
    };
    tell(there, tr("1 is already there"), tr("%1 are already there"));
    tell(outside, tr("1 is outside the sequence"), tr("%1 are outside the sequence"));
    tell(unreadable, tr("1 is unreadable"), tr("%1 are unreadable"));
    tell(leftOut, tr("1 is not checked"), tr("%1 are not checked"));
    if (!others.isEmpty())
        text += QStringLiteral("; ") + others.join(QStringLiteral(", "));
    return text;
}

std::vector<PlannedNote> NotePreview::checkedNotes() const
{
    std::vector<PlannedNote> notes;
    for (std::size_t row = 0; row < m_notes.size() && m_failure.isEmpty(); ++row) {
        if (!isChecked(row))
            continue;
        notes.push_back(m_notes[row]);
        notes.back().state = PlannedNote::State::Add;
    }
    return notes;
}

} // namespace vantrell

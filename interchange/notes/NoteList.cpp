#include "interchange/notes/NoteList.h"

#include <array>

namespace vantrell
{

namespace
{

constexpr std::array<const char *, 12> roleNames = {"time",    "duration", "end",   "name",
                                                    "comment", "color",    "user",  "track",
                                                    "type",    "ignore",   "field", "ignore"};
const QString fieldPrefix = QStringLiteral("field:");

QStringView NoteRow::*memberOf(NoteRole::Kind kind)
{
    switch (kind) {
    case NoteRole::Time:
        return &NoteRow::time;
    case NoteRole::Duration:
        return &NoteRow::duration;
    case NoteRole::End:
        return &NoteRow::end;
    case NoteRole::Name:
        return &NoteRow::name;
    case NoteRole::Comment:
        return &NoteRow::comment;
    case NoteRole::Color:
        return &NoteRow::color;
    case NoteRole::User:
        return &NoteRow::user;
    case NoteRole::Track:
        return &NoteRow::track;
    case NoteRole::Type:
        return &NoteRow::type;
    case NoteRole::ColorValue:
        return &NoteRow::colorValue;
    case NoteRole::Ignore:
    case NoteRole::Field:
        break;
    }
    return nullptr;
}

} // namespace

QString nameOf(NoteShape shape)
{
    switch (shape) {
    case NoteShape::AvidText:
        return QStringLiteral("avid-text");
    case NoteShape::AvidXml:
        return QStringLiteral("avid-xml");
    case NoteShape::Premiere:
        return QStringLiteral("premiere");
    case NoteShape::Audition:
        return QStringLiteral("audition");
    case NoteShape::ResolveEdl:
        return QStringLiteral("resolve-edl");
    case NoteShape::EdlLocators:
        return QStringLiteral("edl-locators");
    case NoteShape::ProTools:
        return QStringLiteral("pro-tools");
    case NoteShape::ReviewCsv:
        return QStringLiteral("review-csv");
    case NoteShape::Chapters:
        return QStringLiteral("chapters");
    case NoteShape::Fcpxml:
        return QStringLiteral("fcpxml");
    case NoteShape::Fcp:
        return QStringLiteral("fcp");
    case NoteShape::Table:
        break;
    }
    return QStringLiteral("table");
}

QString NoteRole::text() const
{
    return kind == Field ? fieldPrefix + title : QString::fromLatin1(roleNames[kind]);
}

std::optional<NoteRole> NoteRole::fromText(const QString &text)
{
    if (text.startsWith(fieldPrefix) && text.size() > fieldPrefix.size())
        return NoteRole{Field, text.sliced(fieldPrefix.size())};
    for (std::size_t i = 0; i <= Ignore; ++i) {
        if (text == QLatin1String(roleNames[i]))
            return NoteRole{Kind(i)};
    }
    return std::nullopt;
}

QStringView NoteRow::value(NoteRole::Kind kind) const
{
    QStringView NoteRow::*const member = memberOf(kind);
    return member ? this->*member : QStringView();
}

void NoteRow::setValue(NoteRole::Kind kind, QStringView value)
{
    if (QStringView NoteRow::*const member = memberOf(kind))
        this->*member = value;
}

QStringView NoteList::keep(const QString &text)
{
    return text.isNull() ? QStringView() : QStringView(m_texts->emplace_back(text));
}

void NoteList::add(NoteRow row)
{
    if (row.time.isEmpty()) {
        unreadable.push_back({row.line, QStringLiteral("There is no time.")});
        return;
    }
    if (!NoteTime::parse(row.time, timeUnit)) {
        unreadable.push_back({row.line, QStringLiteral("“%1” is no time.").arg(row.time.left(80))});
        return;
    }
    rows.push_back(std::move(row));
}

} // namespace vantrell

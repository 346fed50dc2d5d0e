#include "compare/ChangeListFile.h"

#include "compare/ChangeDifference.h"
#include "timecode/QVTimecode.h"

#include <QIODevice>
#include <QTextStream>

#include <algorithm>

namespace vantrell
{

namespace
{

/// A change as it stands in a table.
struct ChangeTexts {
    QString kind;
    QString name;
    QString track;
    QString oldIn; ///< the four empty where the event is not
    QString oldOut;
    QString newIn;
    QString newOut;
    QString difference;
    QString file;

    ChangeTexts(const CutComparison &comparison, const EventChange &change)
        : kind(change.kindName())
        , name(comparison.event(change).name)
        , track(comparison.event(change).trackName())
        , difference(differenceOf(comparison, change))
        , file(comparison.file(change))
    {
        if (const TrackEvent *const before = comparison.oldEvent(change)) {
            oldIn = comparison.oldTimecode(before->start);
            oldOut = comparison.oldTimecode(before->end);
        }
        if (const TrackEvent *const after = comparison.newEvent(change)) {
            newIn = comparison.newTimecode(after->start);
            newOut = comparison.newTimecode(after->end);
        }
    }

    static QStringList titles()
    {
        return {QStringLiteral("Change"),  QStringLiteral("Event"),      QStringLiteral("Track"),
                QStringLiteral("Old In"),  QStringLiteral("Old Out"),    QStringLiteral("New In"),
                QStringLiteral("New Out"), QStringLiteral("Difference"), QStringLiteral("File")};
    }
    QStringList all() const { return {kind, name, track, oldIn, oldOut, newIn, newOut, difference, file}; }
};

void writeCsvLine(const QStringList &fields, QTextStream &out)
{
    const auto needsQuotes = [](QChar c) { return c == u',' || c == u'"' || c == u'\r' || c == u'\n'; };
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (i > 0)
            out << u',';
        QString field = fields[i];
        if (std::any_of(field.cbegin(), field.cend(), needsQuotes))
            field = u'"' + field.replace(u'"', QStringLiteral("\"\"")) + u'"';
        out << field;
    }
    out << QStringView(u"\r\n");
}

void writeHtmlRow(const QStringList &cells, QLatin1String cell, QTextStream &out)
{
    out << QStringView(u"<tr>");
    for (const QString &text : cells)
        out << u'<' << cell << u'>' << text.toHtmlEscaped() << QStringView(u"</") << cell << u'>';
    out << QStringView(u"</tr>\n");
}

void writeHtmlStart(const CutComparison &comparison, std::size_t count, QTextStream &out)
{
    const QString title = comparison.after.name.toHtmlEscaped();
    out << QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title><style>\n"
                          "body {margin: 20px; font: 14px sans-serif; color: #000; background: #fff;}\n"
                          "table {width: 100%; border-collapse: collapse;}\n"
                          "th {text-align: left;} th, td {padding: 5px 7px; vertical-align: top;}\n"
                          "tr {break-inside: avoid;} tbody tr:nth-child(odd) {background: #f3f3f3;}\n"
                          "</style></head>\n<body><h1>%1</h1>\n")
               .arg(title);
    out << QStringLiteral("<p>Changes since %1: %2</p>\n")
               .arg(comparison.before.name.toHtmlEscaped(), QString::number(count));
}

/// The text without line breaks.
QString onOneLine(QString text)
{
    for (QChar &c : text)
        c = c == u'\n' || c == u'\r' ? QChar(u' ') : c;
    return text;
}

QString sourceTimecode(const TrackEvent &event, std::int64_t frame, const SequenceTiming &timing)
{
    const Ratio rate = event.mapping.rate;
    return QVTimecode::timecodeFromFrameCount(quint64(std::max<std::int64_t>(frame, 0)),
                                              rate.isZero() ? timing.timebase : rate.ceil(), false, false, 0);
}

void writeEdlEvent(const CutComparison &comparison, const EventChange &change, std::size_t number,
                   QTextStream &out)
{
    const TrackEvent &event = comparison.event(change);
    const ChangeTexts texts(comparison, change);
    const SequenceTiming &timing = change.after ? comparison.newTiming : comparison.oldTiming;
    const bool isTransition = event.kind == TrackEvent::Kind::Transition;
    const QString channel = !event.isAudio     ? QStringLiteral("V")
                            : event.track == 0 ? QStringLiteral("A")
                                               : QStringLiteral("A%1").arg(event.track + 1);
    const QString edit = isTransition ? QStringLiteral("D    %1").arg(event.length(), 3, 10, QLatin1Char('0'))
                                      : QStringLiteral("C       ");
    std::int64_t in = 0;
    std::int64_t out1 = event.length();
    if (event.isItem()) {
        const std::int64_t first = event.mapping.sourceAt(0);
        const std::int64_t last = event.mapping.sourceAt(event.length() - 1);
        in = std::min(first, last);
        out1 = std::max(first, last) + 1;
    }
    out << QStringLiteral("%1  %2 %3 %4 %5 %6 %7 %8\n")
               .arg(number, 3, 10, QLatin1Char('0'))
               .arg(event.isItem() ? QLatin1String("AX") : QLatin1String("BL"), -8)
               .arg(channel, -5)
               .arg(edit, sourceTimecode(event, in, timing), sourceTimecode(event, out1, timing),
                    change.after ? texts.newIn : texts.oldIn, change.after ? texts.newOut : texts.oldOut);
    QString what = texts.kind.toUpper();
    if (!texts.difference.isEmpty())
        what += u' ' + texts.difference;
    out << QStringView(u"* CHANGE: ") << onOneLine(what) << u'\n';
    if (change.before && change.after)
        out << QStringView(u"* OLD RECORD: ") << texts.oldIn << u' ' << texts.oldOut << u'\n';
    out << QStringView(u"* TRACK: ") << texts.track << u'\n';
    out << (isTransition ? QStringView(u"* EFFECT NAME: ") : QStringView(u"* FROM CLIP NAME: "))
        << onOneLine(texts.name) << u'\n';
    if (!texts.file.isEmpty())
        out << QStringView(u"* SOURCE FILE: ") << onOneLine(texts.file) << u'\n';
}

} // namespace

QString extensionOf(ChangeListFormat format)
{
    switch (format) {
    case ChangeListFormat::Html:
        return QStringLiteral("html");
    case ChangeListFormat::Edl:
        return QStringLiteral("edl");
    case ChangeListFormat::Csv:
        break;
    }
    return QStringLiteral("csv");
}

Result<void> writeChangeList(const CutComparison &comparison, const std::vector<std::size_t> &changes,
                             ChangeListFormat format, QIODevice &device)
{
    QTextStream out(&device);
    switch (format) {
    case ChangeListFormat::Csv:
        out << QChar(QChar::ByteOrderMark);
        writeCsvLine(ChangeTexts::titles(), out);
        for (const std::size_t index : changes)
            writeCsvLine(ChangeTexts(comparison, comparison.changes[index]).all(), out);
        break;
    case ChangeListFormat::Html:
        writeHtmlStart(comparison, changes.size(), out);
        out << QStringView(u"<table>\n<thead>");
        writeHtmlRow(ChangeTexts::titles(), QLatin1String("th"), out);
        out << QStringView(u"</thead>\n<tbody>\n");
        for (const std::size_t index : changes)
            writeHtmlRow(ChangeTexts(comparison, comparison.changes[index]).all(), QLatin1String("td"), out);
        out << QStringView(u"</tbody></table></body></html>\n");
        break;
    case ChangeListFormat::Edl:
        out << QStringView(u"TITLE: ") << onOneLine(comparison.after.name) << u'\n'
            << (comparison.newTiming.dropFrame ? QStringView(u"FCM: DROP FRAME\n")
                                               : QStringView(u"FCM: NON-DROP FRAME\n"))
            << QStringView(u"* CHANGES SINCE: ") << onOneLine(comparison.before.name) << u'\n';
        for (std::size_t i = 0; i < changes.size(); ++i) {
            out << u'\n';
            writeEdlEvent(comparison, comparison.changes[changes[i]], i + 1, out);
        }
        break;
    }
    out.flush();
    if (out.status() != QTextStream::Ok)
        return Failure{device.errorString()};
    return {};
}

} // namespace vantrell

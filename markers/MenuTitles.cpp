#include "markers/MenuTitles.h"

#include "markers/SequenceTiming.h"
#include "support/text/TextNumbers.h"
#include "timecode/QVTimecode.h"

#include <QHash>

#include <functional>

namespace vantrell::MenuTitles
{

namespace
{

using Detail = std::function<QString(XmlNode element)>;

std::int64_t integerOf(XmlNode element, std::string_view name, std::int64_t otherwise)
{
    const XmlNode child = element.childElement(name);
    return child ? integerValue(child.stringValue()) : otherwise;
}

QString timecodeAt(std::int64_t frames, const SequenceTiming &timing)
{
    return QVTimecode::timecodeFromFrameCount(quint64(frames), timing.timebase, timing.ntsc, timing.dropFrame,
                                              quint64(timing.startFrame));
}

/// A position that a transition hides is negative.
QString range(std::int64_t start, std::int64_t end, const SequenceTiming &timing)
{
    const QString unknown(QChar(u'…'));
    return (start < 0 ? unknown : timecodeAt(start, timing)) + QStringLiteral(" – ") +
           (end < 0 ? unknown : timecodeAt(end, timing));
}

/// Such as "V2"; empty for a clip on no track.
QString trackOf(XmlNode clip)
{
    const XmlNode track = clip.parent();
    const XmlNode kind = track.parent();
    const QString letter = kind.isElement("video")   ? QStringLiteral("V")
                           : kind.isElement("audio") ? QStringLiteral("A")
                                                     : QString();
    if (letter.isEmpty() || !track.isElement("track"))
        return QString();
    int number = 1;
    for (XmlNode before = track.previousSibling(); before; before = before.previousSibling())
        number += before.isElement("track") ? 1 : 0;
    return letter + QString::number(number);
}

QHash<QString, int> countsOf(const QStringList &titles)
{
    QHash<QString, int> counts;
    for (const QString &title : titles)
        ++counts[title];
    return counts;
}

/// Adds the detail to each title that there is more than once.
void tellApart(QStringList &titles, const Menu &menu, const Detail &detail)
{
    const QHash<QString, int> counts = countsOf(titles);
    if (counts.size() == titles.size())
        return;
    for (std::size_t i = 0; i < menu.size(); ++i) {
        QString &title = titles[qsizetype(i)];
        const QString text = counts.value(title) > 1 && menu[i].element ? detail(menu[i].element) : QString();
        if (!text.isEmpty())
            title += QStringLiteral(" (%1)").arg(text);
    }
}

void number(QStringList &titles)
{
    const QHash<QString, int> counts = countsOf(titles);
    if (counts.size() == titles.size())
        return;
    QHash<QString, int> used;
    for (QString &title : titles) {
        if (counts.value(title) > 1)
            title += QStringLiteral(" #%1").arg(++used[title]);
    }
}

QStringList titlesOf(const Menu &menu)
{
    QStringList titles;
    titles.reserve(qsizetype(menu.size()));
    for (const MenuItem &item : menu)
        titles.append(item.title);
    return titles;
}

} // namespace

QStringList ofSequences(const Menu &menu)
{
    QStringList titles = titlesOf(menu);
    tellApart(titles, menu, [](XmlNode sequence) {
        return range(0, integerOf(sequence, "duration", -1), SequenceTiming::ofFirstElements(sequence));
    });
    number(titles);
    return titles;
}

QStringList ofClips(const Menu &menu, XmlNode sequence)
{
    QStringList titles = titlesOf(menu);
    const SequenceTiming timing = SequenceTiming::ofFirstElements(sequence);
    tellApart(titles, menu, [&timing](XmlNode clip) {
        return range(integerOf(clip, "start", -1), integerOf(clip, "end", -1), timing);
    });
    tellApart(titles, menu, trackOf);
    number(titles);
    return titles;
}

} // namespace vantrell::MenuTitles

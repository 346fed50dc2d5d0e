#pragma once

#include <QByteArray>
#include <QList>

namespace vantrell
{

/// Items of one track: "a 0-50@10" is a clip of the file a; "a 0-50@10*50" at half speed, "…+blur" with a
/// filter, "…-blur" with one that is off, "…!" switched off; "=dissolve 40-60" a transition.
inline QByteArray track(const char *items)
{
    QByteArray text = "<track>";
    for (const QByteArray &item : QByteArray(items).split(',')) {
        if (item.trimmed().isEmpty())
            continue;
        const QByteArrayList words = item.trimmed().split(' ');
        QByteArray rest = words[1];
        const auto taken = [&rest](char mark) {
            const auto at = rest.indexOf(mark, rest.indexOf('@') + 1);
            const QByteArray found = at < 0 || rest.indexOf('@') < 0 ? QByteArray() : rest.mid(at + 1);
            if (at >= 0 && rest.indexOf('@') >= 0)
                rest.truncate(at);
            return found;
        };
        const bool isOff = rest.endsWith('!');
        if (isOff)
            rest.chop(1);
        const QByteArray off = taken('-');
        const QByteArray on = taken('+');
        const QByteArray speed = taken('*');
        const QByteArray place = rest.split('@')[0];
        const QByteArray in = rest.contains('@') ? rest.split('@')[1] : QByteArray("0");
        const QByteArray edges =
            "<start>" + place.split('-')[0] + "</start><end>" + place.split('-')[1] + "</end>";
        if (words[0].startsWith('=')) {
            text += "<transitionitem>" + edges + "<effect><name>" + words[0].mid(1) +
                    "</name></effect></transitionitem>";
            continue;
        }
        const qlonglong length = place.split('-')[1].toLongLong() - place.split('-')[0].toLongLong();
        text += "<clipitem><name>" + words[0] + "</name>" + edges + "<in>" + in + "</in><out>" +
                QByteArray::number(in.toLongLong() + length) + "</out>" +
                (isOff ? "<enabled>FALSE</enabled>" : "") + "<file><pathurl>file:///" + words[0] +
                ".mov</pathurl></file>";
        if (!speed.isEmpty())
            text +=
                "<filter><effect><effectid>timeremap</effectid><parameter><parameterid>speed</parameterid>"
                "<value>" +
                speed + "</value></parameter></effect></filter>";
        for (const QByteArray &filter : {on, off}) {
            if (!filter.isEmpty())
                text += QByteArray("<filter><enabled>") + (filter == on ? "TRUE" : "FALSE") +
                        "</enabled><effect><name>" + filter + "</name></effect></filter>";
        }
        text += "</clipitem>";
    }
    return text + "</track>";
}

/// The tracks of a sequence, separated by "|".
inline QByteArray sequenceOf(const QByteArray &tracks)
{
    QByteArray text = "<xmeml><sequence><name>S</name><media><video>";
    for (const QByteArray &items : tracks.split('|'))
        text += track(items.constData());
    return text + "</video></media></sequence></xmeml>";
}

} // namespace vantrell

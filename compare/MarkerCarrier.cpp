#include "compare/MarkerCarrier.h"

#include "document/DocumentEdit.h"
#include "document/MyDocument.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerComment.h"
#include "markers/MarkerEditor.h"
#include "markers/MarkerKeys.h"
#include "support/log/QVLog.h"
#include "support/text/TextNumbers.h"

#include <QHash>

#include <unordered_map>

namespace vantrell
{

namespace
{

QString markerText(XmlNode marker, std::string_view name)
{
    return marker.childElement(name).stringValue();
}

/// What makes two markers of one owner the same.
QString identityOf(XmlNode marker, std::int64_t in)
{
    return QString::number(in) + QChar(0) + markerText(marker, "name") + QChar(0) +
           markerText(marker, "comment");
}

/// The markers that a sequence and its items have, each to be found as often as it is there.
class PresentMarkers
{
public:
    bool take(XmlNode owner, XmlNode marker, std::int64_t in)
    {
        const auto [known, isNew] = m_counts.try_emplace(owner);
        if (isNew) {
            for (XmlNode child = owner.firstChildElement(); child; child = child.nextSiblingElement()) {
                if (child.isElement("marker"))
                    ++known->second[identityOf(child, integerValue(markerText(child, "in")))];
            }
        }
        const auto count = known->second.find(identityOf(marker, in));
        if (count == known->second.end() || *count == 0)
            return false;
        --*count;
        return true;
    }

private:
    std::unordered_map<XmlNode, QHash<QString, int>> m_counts;
};

/// Makes the new marker hold what the old one does besides name, comment and points.
void copyContent(XmlNode from, XmlNode to, XmlDocument &document)
{
    const XmlNode ownColor = to.childElement("color");
    const XmlNode color = from.childElement("color");
    const auto text = [](XmlNode element) { return XmlDocument::textOfElement(element); };
    const bool hasColor = color && ownColor && text(color) == text(ownColor);
    if (ownColor && !hasColor)
        document.remove(ownColor);
    for (XmlNode child = from.firstChildElement(); child; child = child.nextSiblingElement()) {
        const bool isWritten = child.isElement("name") || child.isElement("comment") ||
                               child.isElement("in") || child.isElement("out") ||
                               (hasColor && child == color);
        if (isWritten)
            continue;
        const Result<XmlNode> copy = document.elementFromText(text(child));
        if (copy)
            document.moveTo(copy.value(), to);
        else
            QVLog::appendLog(u"Part of a marker could not be carried: %@", copy.message());
    }
}

} // namespace

QString CarriedMarker::stateName() const
{
    if (isThere)
        return QStringLiteral("there");
    switch (place.state) {
    case MarkerPlace::State::Carried:
        return QStringLiteral("carried");
    case MarkerPlace::State::Nearest:
        return QStringLiteral("nearest");
    case MarkerPlace::State::Gone:
        break;
    }
    return QStringLiteral("gone");
}

std::vector<CarriedMarker> MarkerCarrier::plan(const SequenceEvents &before, const SequenceEvents &after)
{
    return plan(before, after, EventMatch(before, after));
}

std::vector<CarriedMarker> MarkerCarrier::plan(const SequenceEvents &before, const SequenceEvents &after,
                                               const EventMatch &match)
{
    const std::vector<MarkerSpan> markers = MarkerSpan::of(before);
    const std::vector<MarkerPlace> places = MarkerPlaces(before, after, match).placesOf(markers);
    PresentMarkers present;
    std::vector<CarriedMarker> plan(markers.size());
    for (std::size_t i = 0; i < markers.size(); ++i) {
        plan[i].name = markerText(markers[i].element, "name");
        if (plan[i].name.isNull())
            plan[i].name = QStringLiteral("");
        plan[i].marker = markers[i];
        plan[i].place = places[i];
        if (places[i].state == MarkerPlace::State::Gone)
            continue;
        const XmlNode owner = places[i].event ? after.events[*places[i].event].element : after.sequence;
        plan[i].isThere = present.take(owner, markers[i].element, places[i].in);
    }
    return plan;
}

std::size_t MarkerCarrier::carry(std::vector<CarriedMarker> &plan, const SequenceEvents &after,
                                 MyDocument &document, MarkerEditor &editor, std::int64_t sequenceItem,
                                 WithoutPlace withoutPlace)
{
    Progress progress;
    const RowView::Updates updates(document.rowView(Tab::Markers));
    carrySome(plan, after, document, editor, sequenceItem, progress, std::nullopt, withoutPlace);
    return progress.added;
}

void MarkerCarrier::carrySome(std::vector<CarriedMarker> &plan, const SequenceEvents &after,
                              MyDocument &document, MarkerEditor &editor, std::int64_t sequenceItem,
                              Progress &progress, std::optional<std::chrono::milliseconds> limit,
                              WithoutPlace withoutPlace)
{
    const auto start = std::chrono::steady_clock::now();
    if (progress.group == 0)
        progress.group = document.newEditGroup();
    const DocumentEdit edit(document, Tab::Markers, QStringLiteral("Carry Markers"), progress.group);
    while (progress.next < plan.size()) {
        CarriedMarker &one = plan[progress.next++];
        if (add(one, after, document, editor, sequenceItem, withoutPlace))
            ++progress.added;
        if (limit && std::chrono::steady_clock::now() - start >= *limit)
            break;
    }
}

bool MarkerCarrier::add(CarriedMarker &one, const SequenceEvents &after, MyDocument &document,
                        MarkerEditor &editor, std::int64_t sequenceItem, WithoutPlace withoutPlace)
{
    if (one.isThere || !one.isWanted)
        return false;
    MarkerPlace place = one.place;
    if (place.state == MarkerPlace::State::Gone) {
        if (!one.statedFrame && withoutPlace == WithoutPlace::Left)
            return false;
        place.in = one.statedFrame.value_or(place.oldFrame);
        place.duration = one.marker.duration;
    }
    const XmlNode old = one.marker.element;
    const std::int64_t out = place.duration > 0 ? place.in + place.duration : -1;
    const int color = MarkerColors::indexOfElement(old.childElement("color"));
    const auto rejected = [](const QString &reason) {
        QVLog::appendLog(u"A marker could not be carried: %@", reason);
    };
    const RowRecordPtr record =
        editor.addMarkerWithName(QStringLiteral(""), place.in, out, QStringLiteral(""),
                                 MarkerColors::table()[std::size_t(color)].name, sequenceItem, rejected);
    if (!record)
        return false;
    // As typed: what adding takes from a name or comment, and the tags that it refuses, come this way.
    editor.updateXMLMarker(record, QStringLiteral("name"), one.name);
    const QString comment = markerText(old, "comment");
    editor.updateXMLMarker(record, QStringLiteral("comment"), comment);
    MarkerComment::read(comment, *record);
    const XmlNode marker = record->get(MarkerKey::markerElement);
    copyContent(old, marker, *document.xmlDoc());
    if (place.event)
        editor.setXMLMarkerSequence(after.sequence, after.events[*place.event].element, record);
    one.isAdded = true;
    return true;
}

} // namespace vantrell

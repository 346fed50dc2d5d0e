#include "markers/MarkerInventory.h"

#include "markers/MarkerColors.h"
#include "markers/MarkerColumns.h"
#include "markers/MarkerComment.h"
#include "markers/MarkerFields.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerOwners.h"
#include "markers/MarkerSearch.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "xml/QVXMLParser.h"

#include <algorithm>

namespace vantrell
{

namespace
{

/// The first child of each name that a marker is read from.
struct MarkerParts {
    explicit MarkerParts(XmlNode marker)
    {
        for (XmlNode child = marker.firstChildElement(); child; child = child.nextSiblingElement()) {
            for (const auto &[part, elementName] : parts) {
                if (!(this->*part) && child.isPlainElement(elementName))
                    this->*part = child;
            }
        }
    }

    XmlNode name;
    XmlNode comment;
    XmlNode in;
    XmlNode out;
    XmlNode color;

private:
    static constexpr std::pair<XmlNode MarkerParts::*, const char *> parts[] = {
        {&MarkerParts::name, "name"}, {&MarkerParts::comment, "comment"}, {&MarkerParts::in, "in"},
        {&MarkerParts::out, "out"},   {&MarkerParts::color, "color"},
    };
};

/// The element's first text; null when it has none.
QString firstText(XmlNode element)
{
    XmlNode child = element.firstChild();
    while (child && !child.isText())
        child = child.nextSibling();
    return child.stringValue();
}

/// As QVXMLParser::nameForNode(), without a search where the name stands in plain sight.
QString nameOf(XmlNode marker, XmlNode nameElement)
{
    const QString text = firstText(nameElement);
    if (!text.isNull() && !text.contains(QLatin1Char('%')))
        return text;
    return QVXMLParser::nameForNode(marker).value_or(QString());
}

void readMarker(XmlNode marker, RowRecord &record)
{
    static const QString noDuration = QStringLiteral("-1"); // what most rows share
    const MarkerParts parts(marker);
    record.set(MarkerKey::color, 0);
    record.set(MarkerKey::markerElement, marker);
    const QString name = nameOf(marker, parts.name);
    if (!name.isNull())
        record.set(MarkerKey::name, name);
    const QString comment = firstText(parts.comment);
    if (!comment.isNull())
        MarkerComment::read(comment, record);
    const QString in = firstText(parts.in);
    if (!in.isNull())
        record.set(MarkerKey::in, in);
    const QString out = firstText(parts.out);
    if (!out.isNull())
        record.set(MarkerKey::out, out == noDuration ? noDuration : out);
    if (parts.color)
        record.set(MarkerKey::color, MarkerColors::indexOfElement(parts.color));
}

} // namespace

MarkerInventory::MarkerInventory(MyDocument &document, MarkerFields &fields)
    : m_document(document)
    , m_fields(fields)
{
    m_document.rowView(Tab::Markers).setFilter(markerColumns, [this] {
        return markerColorFilter(m_document.viewState());
    });
}

void MarkerInventory::populateMarkerData()
{
    QVLog::appendLog(u"Populating markers...");
    m_document.populate(Tab::Markers, "-[MyDocument populateMarkerData]", [this] {
        std::optional<Extracted> extracted = extract();
        if (!extracted)
            return;
        m_document.mainThread()->runAndWait([&] {
            m_listed = extracted->rows.size();
            m_document.rowView(Tab::Markers).setList(std::move(extracted->rows));
            m_listedUnderOthers = extracted->underOthers;
            ++m_generation;
            m_fields.setupMarkerFields();
        });
    });
    QVLog::appendLog(u"Finished populating markers");
    if (m_document.isSelected(Tab::Markers))
        populateFilteredMarkerData();
}

std::optional<MarkerInventory::Extracted> MarkerInventory::extract() const
{
    Extracted extracted;
    RowList &rows = extracted.rows;
    if (!m_document.xmlDoc())
        return extracted;
    const XmlNodeList markers =
        QVXMLParser::nodesForQuery(QStringLiteral(".//marker"), m_document.xmlNode()).value_or(XmlNodeList());
    QVLog::appendLog(u"Number of markers: %i", markers.size());
    rows.reserve(markers.size());
    MarkerOwners owners(m_document, m_listing);
    RowRecord record;
    const RowRecord empty;
    for (const XmlNode marker : markers) {
        if (m_document.isClosing())
            return std::nullopt;
        const MarkerOwners::Owner &owner = owners.ownerOfMarkersIn(marker.parent());
        if (owner.inInactiveAngle)
            QVLog::fastAppendLog(u"Marker is in inactive multiclip angle - skipping...");
        if (owner.inInactiveAngle || owner.lacksSequence)
            continue;
        record = empty; // keeps its memory, and the copy below takes no more than it needs
        readMarker(marker, record);
        record.merge(owner.keys);
        extracted.underOthers += owner.isOwn ? 0 : 1;
        rows.push_back(std::make_shared<RowRecord>(record));
        m_document.rowView(Tab::Markers).setFoundSoFar(rows.size());
    }
    rows.shrink_to_fit();
    return extracted;
}

void MarkerInventory::setListedUnderOthers(std::size_t count)
{
    m_listed = m_document.markerArray().size();
    m_listedUnderOthers = count;
}

QString MarkerInventory::listedUnderOthersText(const QLocale &numbers) const
{
    if (m_listedUnderOthers == 0)
        return QString();
    return QStringLiteral("%1 of %2 markers %3 listed under another sequence or clip than their own")
        .arg(numbers.toString(qulonglong(m_listedUnderOthers)), numbers.toString(qulonglong(m_listed)),
             m_listedUnderOthers == 1 ? QStringLiteral("is") : QStringLiteral("are"));
}

void MarkerInventory::populateFilteredMarkerData()
{
    guarded("MarkerInventory::populateFilteredMarkerData", [&] {
        QVLog::appendLog(u"Filtering markers...");
        m_document.rebuildRows(Tab::Markers);
        QVLog::appendLog(u"Finished filtering markers");
    });
}

void MarkerInventory::changeMarkerFilter()
{
    populateFilteredMarkerData();
}

} // namespace vantrell

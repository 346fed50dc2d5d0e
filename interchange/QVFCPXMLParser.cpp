#include "interchange/QVFCPXMLParser.h"

#include "interchange/ImportedMarker.h"
#include "interchange/RationalTime.h"
#include "support/text/TextFormat.h"
#include "support/text/TextNumbers.h"
#include "timecode/QVTimecode.h"
#include "xml/XmlDocument.h"
#include "xml/XmlQuery.h"

#include <cmath>
#include <unordered_set>

namespace vantrell
{

namespace
{

/// How frames of the file's sequence are counted and shown.
struct TimecodeParameters {
    double fps = 30;
    qint64 timebase = 30;
    bool ntsc = false;
    bool dropFrame = false;
    quint64 startFrame = 0;
};

TimecodeParameters timecodeParametersOf(XmlNode document)
{
    static const XmlQuery frameDuration(QStringLiteral("./fcpxml[1]/resources[1]/format/@frameDuration[1]"));
    static const XmlQuery tcFormat(
        QStringLiteral("./fcpxml[1]/library[1]//project[1]/sequence[1]/@tcFormat[1]"));
    static const XmlQuery tcStart(QStringLiteral("./fcpxml[1]/library[1]//project[1]/sequence[1]/@tcStart"));
    const auto textOf = [document](const XmlQuery &query) {
        return query.firstText(document).value_or(QString());
    };
    TimecodeParameters parameters;
    parameters.fps = QVFCPXMLParser::fpsFromFrameDuration(textOf(frameDuration));
    parameters.timebase = RationalTime::signedFromDouble(std::ceil(parameters.fps));
    parameters.ntsc = parameters.fps < std::ceil(parameters.fps);
    parameters.dropFrame = textOf(tcFormat) == QLatin1String("DF");
    const double start = QVFCPXMLParser::secondsFromTimeString(textOf(tcStart));
    parameters.startFrame = RationalTime::unsignedFromDouble(std::ceil(parameters.fps * start));
    return parameters;
}

XmlNodeList markerElementsOf(XmlNode document, bool mainStorylineOnly)
{
    static const XmlQuery onMainStoryline(
        QStringLiteral("./fcpxml[1]/library[1]//project[1]/sequence[1]/spine[1]"
                       "/(clip | ref-clip | video | mc-clip | title | transition | gap)/marker"));
    static const XmlQuery anywhere(
        QStringLiteral("./fcpxml[1]/library[1]//project[1]/sequence[1]/spine[1]"
                       "//(clip | ref-clip | video | mc-clip | title | transition | gap)/marker"));
    return (mainStorylineOnly ? onMainStoryline : anywhere).evaluate(document).nodes;
}

double secondsOfAttribute(XmlNode element, const char *name)
{
    return QVFCPXMLParser::secondsFromTimeString(element.attribute(name));
}

/// The marker's position on the sequence, in seconds; nothing when it lies outside the used part of its
/// item. Both ends belong to that part.
std::optional<double> positionOf(XmlNode marker)
{
    const XmlNode parent = marker.parent();
    const double start = secondsOfAttribute(marker, "start");
    const double parentStart = secondsOfAttribute(parent, "start");
    const double parentDuration = secondsOfAttribute(parent, "duration");
    const double parentOffset = secondsOfAttribute(parent, "offset");
    if (parentStart > start || start > parentStart + parentDuration)
        return std::nullopt;
    return RationalTime::finiteOrZero(start - parentStart + parentOffset);
}

QString timecodeAt(double position, const TimecodeParameters &parameters)
{
    const quint64 frames = RationalTime::unsignedFromDouble(parameters.fps * position);
    return QVTimecode::timecodeFromFrameCount(frames, parameters.timebase, parameters.ntsc,
                                              parameters.dropFrame, parameters.startFrame);
}

/// The timecode with a new hour: 0 if it equals the given one, the sum of both if it is less, unchanged if
/// greater.
QString withRelativeHour(QString timecode, qint64 relativeHour)
{
    timecode.replace(QLatin1Char(';'), QLatin1Char(':'));
    const qsizetype rest = timecode.indexOf(QLatin1Char(':'));
    qint64 hour = integerValue(QStringView(timecode).first(rest));
    if (hour == relativeHour)
        hour = 0;
    else if (hour < relativeHour)
        hour = qint64(quint64(hour) + quint64(relativeHour));
    return formatText(u"%@%i:%@", hour < 10 ? QStringLiteral("0") : QString(), hour,
                      timecode.sliced(rest + 1));
}

} // namespace

double QVFCPXMLParser::secondsFromTimeString(const QString &time)
{
    const RationalTime::Parts parts = RationalTime::partsOf(time);
    if (parts.count == 2)
        return RationalTime::quotient(parts.first, parts.second);
    return parts.count == 1 ? RationalTime::finiteOrZero(parts.first) : 0;
}

double QVFCPXMLParser::fpsFromFrameDuration(const QString &frameDuration)
{
    const RationalTime::Parts parts = RationalTime::partsOf(frameDuration);
    if (parts.count == 2)
        return RationalTime::quotient(parts.second, parts.first);
    return parts.count == 1 ? RationalTime::finiteOrZero(parts.first) : 0;
}

quint64 QVFCPXMLParser::multiplierFromFrameDuration(const QString &frameDuration)
{
    return quint64(RationalTime::partsOf(frameDuration).firstAsInteger);
}

quint64 QVFCPXMLParser::framesFromTimeString(const QString &time, quint64 frameDuration)
{
    return RationalTime::unsignedFromDouble(
        RationalTime::quotient(RationalTime::partsOf(time).first, double(frameDuration)));
}

RowList QVFCPXMLParser::markersFromXMLFile(const QString &path, bool useTimecode)
{
    return markersFromXMLFile(path, useTimecode, false, true, -1);
}

RowList QVFCPXMLParser::markersFromXMLFile(const QString &path, bool useTimecode, bool stripDuplicates,
                                           bool mainStorylineOnly)
{
    return markersFromXMLFile(path, useTimecode, stripDuplicates, mainStorylineOnly, -1);
}

RowList QVFCPXMLParser::markersFromXMLFile(const QString &path, bool useTimecode, bool stripDuplicates,
                                           bool mainStorylineOnly, qint64 relativeHour)
{
    RowList rows;
    const Result<std::unique_ptr<XmlDocument>> parsed = XmlDocument::fromFile(path, {false, nullptr});
    if (!parsed)
        return rows;
    const XmlNode document = parsed.value()->node();
    TimecodeParameters parameters;
    if (useTimecode)
        parameters = timecodeParametersOf(document);

    std::unordered_set<double> seen;
    for (const XmlNode marker : markerElementsOf(document, mainStorylineOnly)) {
        const std::optional<double> position = positionOf(marker);
        if (!position)
            continue;
        const bool isNew = seen.insert(*position).second;
        if (stripDuplicates && !isNew)
            continue;
        auto row = std::make_shared<RowRecord>();
        rows.push_back(row);
        const QString name = marker.attribute("value");
        if (name.isNull())
            continue;
        row->set(ImportedMarkerKey::name, name);
        if (!useTimecode) {
            row->set(ImportedMarkerKey::seconds, *position);
            continue;
        }
        QString timecode = timecodeAt(*position, parameters);
        if (relativeHour >= 0)
            timecode = withRelativeHour(timecode, relativeHour);
        row->set(ImportedMarkerKey::startTimecode, timecode);
    }
    return rows;
}

} // namespace vantrell

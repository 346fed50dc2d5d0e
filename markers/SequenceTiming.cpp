#include "markers/SequenceTiming.h"

#include "document/MyDocument.h"
#include "support/text/TextNumbers.h"

namespace vantrell
{

namespace
{

struct Queries {
    QString ntsc;
    QString displayFormat;
    QString timebase;
    QString frame;
};

SequenceTiming read(XmlNode sequence, const Queries &queries)
{
    const auto valueOf = [sequence](const QString &query) {
        return MyDocument::valueForXPath(query, sequence).value_or(QString());
    };
    SequenceTiming timing;
    timing.ntsc = valueOf(queries.ntsc).toLower() == QStringLiteral("true");
    timing.dropFrame = valueOf(queries.displayFormat).toLower() == QStringLiteral("df");
    timing.timebase = integerValue(valueOf(queries.timebase));
    timing.startFrame = integerValue(valueOf(queries.frame));
    return timing;
}

} // namespace

SequenceTiming SequenceTiming::ofFirstTexts(XmlNode sequence)
{
    static const Queries queries = {
        QStringLiteral("./timecode[1]/rate[1]/ntsc[1]/text()"),
        QStringLiteral("./timecode[1]/displayformat[1]/text()"),
        QStringLiteral("./timecode[1]/rate[1]/timebase[1]/text()"),
        QStringLiteral("./timecode[1]/frame[1]/text()"),
    };
    return read(sequence, queries);
}

SequenceTiming SequenceTiming::ofFirstElements(XmlNode sequence)
{
    static const Queries queries = {
        QStringLiteral("./timecode/rate/ntsc"),
        QStringLiteral("./timecode/displayformat"),
        QStringLiteral("./timecode/rate/timebase"),
        QStringLiteral("./timecode/frame"),
    };
    return read(sequence, queries);
}

void SequenceTiming::store(RowRecord &record) const
{
    record.set(TimecodeKey::ntsc, ntsc);
    record.set(TimecodeKey::dropFrame, dropFrame);
    record.set(TimecodeKey::timebase, timebase);
    record.set(TimecodeKey::startFrame, startFrame);
}

} // namespace vantrell

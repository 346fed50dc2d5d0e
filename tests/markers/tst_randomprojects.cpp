#include "markers/MarkerTableValues.h"
#include "support/text/TextNumbers.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/LongSeries.h"
#include "tests/support/RandomProject.h"
#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"

#include <QBuffer>

#include <array>
#include <compare>
#include <map>

using namespace vantrell;

namespace
{

/// A plain reference implementation: reads markers one by one by location paths and queries, with the two
/// caches that the results depend on.
class PlainReader
{
public:
    explicit PlainReader(MyDocument &document)
        : m_document(document)
    {
    }

    QStringList records()
    {
        QStringList all;
        const QString query = QStringLiteral(".//marker");
        const XmlNodeList markers = QVXMLParser::nodesForQuery(query, m_document.xmlNode()).value();
        for (const XmlNode marker : markers) {
            RowRecord record;
            if (isActive(marker) && read(marker, record))
                all.append(MarkerProject::whole(record));
        }
        return all;
    }

private:
    static std::optional<QString> textAt(const char *text, XmlNode node)
    {
        return QVXMLParser::stringValueForQuery(QString::fromLatin1(text), node);
    }
    static bool is(const char *text, XmlNode node, const char *value)
    {
        return textAt(text, node).value_or(QString()).toLower() == QLatin1String(value);
    }
    static void store(RowRecord &record, const char *key, const std::optional<QString> &value)
    {
        if (value)
            record.set(RecordKey(QString::fromLatin1(key)), *value);
    }

    /// The comments with tags that random projects have, worked out by hand; in all others no tag is whole.
    static void readComment(const QString &text, RowRecord &record)
    {
        static const std::map<QByteArray, QByteArrayList> tagged = {
            {"<CHAPTER>", {"chapter=1", "comment=<CHAPTER>"}}, // without its blank the tag stays
            {" <CHAPTER>a", {"chapter=1", "comment=a"}},
            {" <SCORING> <COMPRESSION>", {"compression=1", "scoring=1", "comment="}},
            {"<QVCUSTOM_T>3<_QVCUSTOM_T>", {"QVCUSTOM_T=3", "comment="}},
        };
        const QByteArray comment = text.toUtf8();
        const auto known = tagged.find(comment);
        for (const QByteArray &part :
             known == tagged.end() ? QByteArrayList{"comment=" + comment} : known->second) {
            const qsizetype end = part.indexOf('=');
            store(record, part.first(end).constData(), QString::fromUtf8(part.sliced(end + 1)));
        }
    }

    static int colorOf(XmlNode color)
    {
        using Channels = std::array<qint64, 4>; // alpha, red, green, blue
        static const std::map<Channels, int> colors = {
            {{0, 255, 127, 0}, 1}, {{0, 255, 255, 0}, 2}, {{0, 48, 191, 72}, 3}, {{0, 48, 191, 191}, 4},
            {{0, 0, 128, 255}, 5}, {{0, 127, 0, 255}, 6}, {{0, 255, 0, 127}, 7},
        };
        static const QStringList names{QStringLiteral("alpha"), QStringLiteral("red"),
                                       QStringLiteral("green"), QStringLiteral("blue")};
        Channels channels = {0, 255, 0, 0};
        for (XmlNode child = color.firstChildElement(); child; child = child.nextSiblingElement()) {
            const qsizetype channel = names.indexOf(child.name());
            if (channel >= 0)
                channels[std::size_t(channel)] = child.stringValue().toLongLong();
        }
        const auto known = colors.find(channels);
        return known == colors.end() ? 0 : known->second;
    }

    static bool isActive(XmlNode marker)
    {
        if (!marker.locationPath().contains(QStringLiteral("angle")))
            return true;
        const XmlNode angle = QVXMLParser::parentWithName(marker, "angle");
        return is("./activevideoangle[1]/text()", angle, "true") ||
               is("./activeaudioangle[1]/text()", angle, "true");
    }

    bool read(XmlNode marker, RowRecord &record)
    {
        record.set(MarkerKey::color, 0);
        record.set(MarkerKey::markerElement, marker);
        store(record, "name", QVXMLParser::nameForNode(marker));
        if (const auto comment = textAt("./comment[1]/text()", marker))
            readComment(*comment, record);
        store(record, "in", textAt("./in[1]/text()", marker));
        store(record, "out", textAt("./out[1]/text()", marker));
        if (const XmlNode color = QVXMLParser::nodeForQuery(QStringLiteral("./color[1]"), marker))
            record.set(MarkerKey::color, colorOf(color));
        XmlNode current;
        const QStringList steps = marker.locationPath().split(QLatin1Char('/'));
        for (qsizetype i = 0; i < steps.size(); ++i) {
            if (steps.at(i).startsWith(QStringLiteral("sequence"))) {
                if (!m_sequences.contains(steps.at(i)) && !readSequence(marker, steps.at(i)))
                    return false;
                record.merge(m_sequences[steps.at(i)].first);
                current = m_sequences[steps.at(i)].second;
            } else if (steps.at(i).startsWith(QStringLiteral("clip"))) {
                const QString key = steps.first(i).join(QLatin1Char('/'));
                const char *name = steps.at(i).startsWith(QStringLiteral("clipitem")) ? "clipitem" : "clip";
                if (!m_clips.contains(key))
                    readClip(QVXMLParser::parentWithName(marker, name), current, key);
                if (m_clips.contains(key))
                    record.merge(m_clips[key]);
            }
        }
        return true;
    }

    static void readTiming(XmlNode sequence, RowRecord &record)
    {
        record.set(TimecodeKey::ntsc, is("./timecode[1]/rate[1]/ntsc[1]/text()", sequence, "true"));
        record.set(TimecodeKey::dropFrame, is("./timecode[1]/displayformat[1]/text()", sequence, "df"));
        record.set(
            TimecodeKey::timebase,
            integerValue(textAt("./timecode[1]/rate[1]/timebase[1]/text()", sequence).value_or(QString())));
        record.set(TimecodeKey::startFrame,
                   integerValue(textAt("./timecode[1]/frame[1]/text()", sequence).value_or(QString())));
    }

    bool readSequence(XmlNode marker, const QString &key)
    {
        const XmlNode sequence = QVXMLParser::parentWithName(marker, "sequence");
        if (!sequence)
            return false;
        RowRecord record;
        record.set(MarkerKey::sequence, sequence);
        const auto uuid = QVXMLParser::uuidForNode(sequence);
        store(record, "sequenceUUID", uuid);
        store(record, "sequenceName", QVXMLParser::nameForNode(sequence));
        readTiming(sequence, record);
        const MenuPtr menu = m_document.sequenceMenu();
        for (std::size_t i = 0; uuid && i < menu->size(); ++i) {
            if (QVXMLParser::uuidForNode((*menu)[i].element) == uuid &&
                !record.contains(MarkerKey::sequenceIndex))
                record.set(MarkerKey::sequenceIndex, std::int64_t(i));
        }
        m_sequences[key] = {record, sequence};
        return true;
    }

    void readClip(XmlNode clip, XmlNode sequence, const QString &key)
    {
        if (!clip || !QVXMLParser::nameForNode(clip))
            return;
        RowRecord record;
        record.set(MarkerKey::clip, clip);
        const auto id = QVXMLParser::idAttributeForNode(clip);
        store(record, "clipID", id);
        store(record, "clipUUID", QVXMLParser::uuidForNode(clip));
        store(record, "clipName", QVXMLParser::nameForNode(clip));
        readTiming(sequence, record);
        const qsizetype index = sequence && id ? m_document.clipIDsForSequence(sequence)->indexOf(*id) : -1;
        if (index >= 0)
            record.set(MarkerKey::clipIndex, index);
        m_clips[key] = record;
    }

    MyDocument &m_document;
    std::map<QString, std::pair<RowRecord, XmlNode>> m_sequences;
    std::map<QString, RowRecord> m_clips;
};

void addOutline(XmlNode element, XmlNode left, QString &text)
{
    if (element == left)
        return;
    if (!element.isElement()) {
        text += element.stringValue();
        return;
    }
    text += QLatin1Char('<') + element.name() + element.attribute("id") + element.attribute("x") +
            QLatin1Char('>');
    for (XmlNode child = element.firstChild(); child; child = child.nextSibling())
        addOutline(child, left, text);
    text += QLatin1Char('/');
}

/// Everything in the element but one part of it.
QString outline(XmlNode element, XmlNode left)
{
    QString text;
    addOutline(element, left, text);
    return text;
}

/// The edited columns of a record whose text survives a reload.
using Edited = std::map<RowRecordPtr, QStringList>;

} // namespace

class RandomProjectsTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;
    const quint64 m_seeds = quint64(seriesLength(1000));

    static QString checkAdding(MarkerProject &p)
    {
        const auto taken = [&p](auto &&takes) {
            return std::any_of(p.document.markerArray().begin(), p.document.markerArray().end(),
                               [&](const RowRecordPtr &record) { return takes(*record); });
        };
        int number = 1;
        while (taken([number](const RowRecord &record) {
            return record.get(MarkerKey::name) == QStringLiteral("Marker %1").arg(number);
        }))
            ++number;
        int in = 0;
        while (taken([in](const RowRecord &record) {
            return record.get(MarkerKey::sequenceIndex) == 1 && record.contains(MarkerKey::in) &&
                   integerValue(record.get(MarkerKey::in)) == in;
        }))
            in += 5;
        const std::size_t count = p.document.markerArray().size();
        p.editor.addMarker();
        if (p.document.markerArray().size() == count)
            return QStringLiteral("nothing was added");
        const RowRecord &record = *p.document.markerArray().back();
        const XmlNode sequence = record.get(MarkerKey::sequence);
        return record.get(MarkerKey::name) == QStringLiteral("Marker %1").arg(number) &&
                       record.get(MarkerKey::in).toInt() == in &&
                       record.get(MarkerKey::sequenceName) ==
                           QVXMLParser::nameForNode(sequence).value_or(QString()) &&
                       record.get(MarkerKey::sequenceUUID) ==
                           QVXMLParser::uuidForNode(sequence).value_or(QString())
                   ? QString()
                   : MarkerProject::whole(record);
    }

    /// Edits one row at random.
    static void editRow(MarkerProject &p, RandomNumbers &random, std::size_t row, Edited &edited)
    {
        static const QByteArrayList names = {"New", "Marker 2", "a<&>\"b", "É \U0001F3AC"};
        static const QByteArrayList columns = {"name",    "in",         "out",    "color",
                                               "chapter", "QVCUSTOM_T", "comment"};
        const RowRecordPtr record = p.marker(row);
        const QByteArray column = random.pick(columns);
        switch (random.below(6)) {
        case 0:
            p.world.selectRows(Tab::Markers, {row});
            p.editor.offsetMarkers(QString::number(random.below(50)));
            edited[record].append(QStringLiteral("in"));
            break;
        case 1:
            p.set({row}, "sequence", QString::number(random.below(4)));
            edited[record].append(QStringLiteral("in"));
            break;
        case 2:
            p.set({row}, "clip", QString::number(random.below(4)));
            edited[record].append(QStringLiteral("in"));
            break;
        default:
            if (column == "name" || column == "comment")
                p.set({row}, column.constData(), QString::fromUtf8(random.pick(names)));
            else
                p.set({row}, column.constData(), QString::number(random.below(8)));
            if (!column.startsWith('Q') && column != "comment" && column != "chapter")
                edited[record].append(QString::fromLatin1(column));
        }
    }

private Q_SLOTS:
    void readingAndShowing()
    {
        for (quint64 seed = 0; seed < m_seeds; ++seed) {
            MarkerProject p(RandomProject(seed).xml());
            QStringList records;
            for (const RowRecordPtr &record : p.document.markerArray()) {
                records.append(MarkerProject::whole(*record));
                const std::int64_t in = integerValue(record->get(MarkerKey::in));
                const std::int64_t start = record->get(TimecodeKey::startFrame);
                if (in >= 0 && in < 500000 && start >= 0 && start < 500000 &&
                    !record->get(TimecodeKey::dropFrame))
                    QCOMPARE(MyDocument::frameCountFromTimecode(MarkerTableValues::inText(*record), *record),
                             in);
            }
            const QStringList expected = PlainReader(p.document).records();
            QVERIFY2(records == expected,
                     qPrintable(QStringLiteral("seed %1:\n%2\n\n%3")
                                    .arg(seed)
                                    .arg(records.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')))));
            std::size_t shown = 0;
            p.document.rowView(Tab::Markers).setSortDescriptors({{QStringLiteral("in"), false}});
            for (int color = 0; color < 8; ++color) {
                p.document.viewState().markerFilter = color + 1;
                p.inventory.changeMarkerFilter();
                const RowList &rows = p.document.rowsOnShow(Tab::Markers);
                shown += rows.size();
                for (std::size_t i = 0; i < rows.size(); ++i) {
                    QCOMPARE(rows[i]->get(MarkerKey::color), std::int64_t(color));
                    QVERIFY(i == 0 || std::is_lteq(MarkerTableValues::compareIntegersFromString(
                                          *rows[i - 1], *rows[i], QStringLiteral("in"))));
                }
            }
            QCOMPARE(shown, p.document.markerArray().size());
        }
    }

    void editing()
    {
        int checked = 0;
        for (quint64 seed = 0; seed < m_seeds; ++seed) {
            MarkerProject p(RandomProject(seed).xml());
            if (p.document.sequenceMenu()->size() < 2)
                continue;
            RandomNumbers random(seed + 1000);
            Edited edited;
            const XmlNode root = p.document.xmlDoc()->rootElement();
            for (int step = 0; step < 10; ++step) {
                const int what = random.below(6);
                const std::size_t count = p.document.markerArray().size();
                XmlNode element;
                QString before;
                if (what == 0 || count == 0) {
                    before = outline(root, XmlNode());
                    QCOMPARE(checkAdding(p), QString());
                    element = p.document.markerArray().back()->get(MarkerKey::markerElement);
                } else {
                    const std::size_t row = std::size_t(random.below(int(count)));
                    element = p.marker(row)->get(MarkerKey::markerElement);
                    if (!element.isAttached())
                        continue; // it went with the marker around it
                    before = outline(root, element);
                    if (what == 1) {
                        p.alerts->queueAnswer(1);
                        p.world.selectRows(Tab::Markers, {row});
                        p.editor.removeMarkers();
                        QVERIFY(!element.isAttached() && p.document.markerArray().size() == count - 1);
                    } else {
                        editRow(p, random, row, edited);
                    }
                }
                QVERIFY2(outline(root, element) == before,
                         qPrintable(QStringLiteral("seed %1, step %2").arg(seed).arg(step)));
                QCOMPARE(p.document.tableArray(), p.document.markerArray());
            }
            checked += compareWithReload(p, edited);
        }
        QVERIFY2(quint64(checked) > m_seeds, qPrintable(QString::number(checked)));
    }

private:
    /// How many edited values came back from the saved project.
    static int compareWithReload(MarkerProject &p, const Edited &edited)
    {
        QBuffer saved;
        saved.open(QIODevice::WriteOnly);
        if (!p.document.xmlDoc()->write(saved))
            qFatal("The project could not be saved.");
        MarkerProject again(saved.data());
        QHash<QString, RowRecordPtr> reloaded;
        for (const RowRecordPtr &record : again.document.markerArray())
            reloaded.insert(record->get(MarkerKey::markerElement).locationPath(), record);
        int compared = 0;
        for (const auto &[record, columns] : edited) {
            const XmlNode element = record->get(MarkerKey::markerElement);
            const RowRecordPtr other = reloaded.value(element.locationPath());
            if (!element.isAttached() || !other)
                continue;
            for (const QString &column : columns) {
                ++compared;
                const QString now = MarkerProject::values(*other, column);
                if (now != MarkerProject::values(*record, column))
                    qFatal("%s: %s", qPrintable(column), qPrintable(MarkerProject::whole(*record) + now));
            }
        }
        return compared;
    }
};

QTEST_GUILESS_MAIN(RandomProjectsTest)
#include "tst_randomprojects.moc"

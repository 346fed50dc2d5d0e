#include "handover/MediaHeader.h"
#include "handover/RelinkPlan.h"
#include "handover/Relinker.h"
#include "support/log/QVLog.h"
#include "tests/media/MediaProject.h"
#include "tests/support/TemporaryHome.h"

#include <QElapsedTimer>
#include <QTest>
#include <QtEndian>

using namespace vantrell;

namespace
{

QByteArray little(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray big(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// Sound of that many seconds at 1000 bytes a second.
QByteArray wave(quint32 seconds)
{
    return "RIFF" + little(0) + "WAVEfmt " + little(16) + QByteArray(4, '\1') + little(500) + little(1000) +
           QByteArray(4, '\1') + "odd " + little(3) + "abc" + '\0' + "data" + little(seconds * 1000);
}

QByteArray atom(const QByteArray &type, const QByteArray &content)
{
    return big(quint32(content.size() + 8)) + type + content;
}

/// A movie of that many thousandths of a second.
QByteArray movie(quint32 milliseconds)
{
    return atom("ftyp", "qt  ") + atom("wide", "") +
           atom("moov", atom("udta", "x") + atom("mvhd", QByteArray(12, '\0') + big(1000) +
                                                             big(milliseconds) + QByteArray(80, '\0')));
}

/// A movie whose first frame has that number at 25 frames a second.
QByteArray movieFrom(quint32 frame, const QByteArray &reel)
{
    const QByteArray name = QByteArray(1, '\0') + char(reel.size()) + QByteArray(2, '\0') + reel;
    const QByteArray description = QByteArray(8, '\0') + QByteArray(8, '\0') + big(2500) + big(100) + "\x19" +
                                   QByteArray(1, '\0') + atom("name", name);
    const QByteArray table = atom("stsd", QByteArray(4, '\0') + big(1) + atom("tmcd", description)) +
                             atom("stco", QByteArray(4, '\0') + big(1) + big(20));
    return atom("ftyp", "qt  ") + atom("mdat", big(frame)) +
           atom("moov", atom("trak", atom("tkhd", "x")) +
                            atom("trak", atom("mdia", atom("minf", atom("stbl", table)))));
}

/// Sound whose first sample has that number at 500 samples a second.
QByteArray waveFrom(quint32 sample)
{
    const QByteArray extension = QByteArray(338, ' ') + little(sample) + little(0) + QByteArray(257, '\0');
    return "RIFF" + little(0) + "WAVEbext" + little(603) + extension + '\0' + wave(2).sliced(12);
}

QByteArray aiff(quint32 frames)
{
    return "FORM" + big(0) + "AIFF" + "NAME" + big(1) + 'x' + '\0' + "COMM" + big(18) + QByteArray(2, '\1') +
           big(frames) + QByteArray(2, '\1') + QByteArray::fromHex("400EBB80000000000000") +
           QByteArray(8, '\0');
}

QByteArray file(const QByteArray &id, const QByteArray &url, const QByteArray &duration = QByteArray())
{
    return "<file id=\"" + id + "\"><pathurl>" + url +
           "</pathurl><rate><timebase>25</timebase><ntsc>FALSE</ntsc></rate>" +
           (duration.isEmpty() ? QByteArray() : "<duration>" + duration + "</duration>") + "</file>";
}

QByteArray sequence(const QByteArray &name, const QByteArray &files)
{
    return "<sequence><uuid>" + name + "</uuid><name>" + name + "</name><media><video><track><clipitem>" +
           files + "</clipitem></track></video></media></sequence>";
}

MissingFile missing(const QString &path, std::optional<double> seconds = std::nullopt)
{
    return {path, path, path.section(QLatin1Char('/'), -1), seconds};
}

QByteArray candidatesOf(const RelinkMatch &match)
{
    QByteArrayList paths;
    for (const RelinkCandidate &candidate : match.candidates)
        paths.append(candidate.file.path.toUtf8());
    return paths.join(' ');
}

} // namespace

class RelinkerTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    /// Less agreement of names counts only where there is no better one.
    void names()
    {
        const std::vector<FolderWalk::Found> found{{QStringLiteral("/1/A.mov"), {}},
                                                   {QStringLiteral("/2/a.mov"), {}},
                                                   {QStringLiteral("/3/a.mov"), {}},
                                                   {QStringLiteral("/4/b%20c.mov"), {}}};
        const std::vector<std::pair<const char *, QByteArray>> table{
            {"/V/A.mov", "/1/A.mov"},
            {"/V/3/a.mov", "/2/a.mov /3/a.mov"},
            {"/V/A.MOV", "/1/A.mov /2/a.mov /3/a.mov"},
            {"/V/b c.mov", "/4/b%20c.mov"},
            {"/V/d.mov", ""},
            {"/", ""},
        };
        std::vector<MissingFile> files;
        files.reserve(table.size());
        for (const auto &row : table)
            files.push_back(missing(QString::fromLatin1(row.first)));
        const std::vector<RelinkMatch> matches = Relinker::matches(files, found);
        QCOMPARE(matches.size(), table.size());
        for (std::size_t i = 0; i < table.size(); ++i)
            QCOMPARE(candidatesOf(matches[i]), table[i].second);
        QCOMPARE(matches[1].candidates[0].alikeFolders, 0);
        QCOMPARE(matches[1].candidates[1].alikeFolders, 1);
        QVERIFY(matches[2].candidates[0].name == NameMatch::Case);
    }

    /// Of several files with the name, the one that lasts as long as the project says is taken.
    void durations()
    {
        const QString a = m_home.addFile(QStringLiteral("d/1/a.wav"), wave(4)),
                      b = m_home.addFile(QStringLiteral("d/2/a.wav"), wave(7)),
                      c = m_home.addFile(QStringLiteral("d/3/a.wav"), "RIFF");
        const std::vector<FolderWalk::Found> found{{a, {}}, {b, {}}, {c, {}}};
        const auto match = [&found](std::optional<double> seconds) {
            return candidatesOf(
                Relinker::matches({missing(QStringLiteral("/a.wav"), seconds)}, found).front());
        };
        QCOMPARE(match(7.04), b.toUtf8());
        QCOMPARE(match(5), (a + QLatin1Char(' ') + b + QLatin1Char(' ') + c).toUtf8());
        QCOMPARE(match(std::nullopt).count(' '), 2);
    }

    /// What a plan takes at first, and which mapping would do instead.
    void plans()
    {
        const auto found = [](const char *path, int alike = 0) {
            RelinkCandidate candidate;
            candidate.file.path = QString::fromLatin1(path);
            candidate.alikeFolders = alike;
            return candidate;
        };
        const auto file = [](const char *url) {
            const QString text = QString::fromLatin1(url);
            return MissingFile{text, text.mid(text.indexOf(QStringLiteral("/V"))), QString(), std::nullopt};
        };
        RelinkPlan plan(
            {{file("file:///V/a.mov"), {found("/m/a.mov")}},
             {file("file:///V/s/b.mov"), {found("/n/b.mov"), found("/m/s/b.mov", 1), found("/k/b.mov")}},
             {file("file:///V/c.mov"), {}},
             {file("/V x/d.mov"), {found("/m/d.mov")}}});
        const std::optional<PathMapping> mapping(PathMapping{QStringLiteral("/V"), QStringLiteral("/m")});
        QCOMPARE(plan.choices().size(), std::size_t(2));
        QVERIFY(!plan.mapping()); // the last one is no URL, which no mapping finds
        plan.setRelinked(3, false);
        QCOMPARE(plan.mapping(), mapping);
        plan.setRelinked(2, true);
        plan.choose(1, 7);
        QCOMPARE(plan.choices().size(), std::size_t(1));
        plan.setRelinked(1, true);
        QCOMPARE(plan.choices()[1].file.path, QStringLiteral("/m/s/b.mov"));
        QCOMPARE(plan.mapping(), mapping);
        plan.choose(1, 2);
        QCOMPARE(plan.choices()[1].file.path, QStringLiteral("/k/b.mov"));
        QVERIFY(!plan.mapping());
        plan.setRelinked(0, false);
        plan.setRelinked(1, false);
        QVERIFY(plan.choices().empty() && !plan.mapping());
    }

    void headers()
    {
        const std::pair<QByteArray, std::optional<double>> table[] = {
            {wave(4), 4},
            {movie(2500), 2.5},
            {aiff(96000), 2},
            {"RIFF" + little(0) + "WAVE", std::nullopt},
            {wave(4).chopped(20), std::nullopt},
            {movie(2500).chopped(85), std::nullopt},
            {big(1) + "moov" + QByteArray(8, '\xff'), std::nullopt},
            {QByteArray(), std::nullopt},
        };
        for (const auto &[content, seconds] : table)
            QCOMPARE(MediaHeader::read(m_home.addFile(QStringLiteral("header"), content)).seconds, seconds);
    }

    /// Where the duration does not decide, timecode and reel do; what they contradict is told.
    void timecodes()
    {
        const QString a = m_home.addFile(QStringLiteral("t/1/a.mov"), movieFrom(250, "R1")),
                      b = m_home.addFile(QStringLiteral("t/2/a.mov"), movieFrom(500, "R1")),
                      c = m_home.addFile(QStringLiteral("t/3/a.mov"), movieFrom(500, "R2")),
                      d = m_home.addFile(QStringLiteral("t/4/a.mov"), waveFrom(10000));
        const std::vector<FolderWalk::Found> found{{a, {}}, {b, {}}, {c, {}}, {d, {}}};
        MissingFile file = missing(QStringLiteral("/a.mov"));
        const auto match = [&] { return Relinker::matches({file}, found).front(); };
        QCOMPARE(match().candidates.size(), std::size_t(4));
        file.start = 10;
        QCOMPARE(candidatesOf(match()), a.toUtf8());
        file.start = 20;
        QCOMPARE(match().candidates.size(), std::size_t(3));
        file.reel = QStringLiteral("r2");
        QCOMPARE(candidatesOf(match()), c.toUtf8());
        file.rate = 24;
        file.seconds = 1;
        file.reel = QStringLiteral("R1");
        RelinkCandidate candidate;
        candidate.file.path = d;
        QVERIFY(Relinker::contradictions(file, candidate).isEmpty());
        Relinker::readHeader(candidate);
        QCOMPARE(Relinker::contradictions(file, candidate), QStringList(QStringLiteral("other duration")));
        candidate = {};
        candidate.file.path = a;
        Relinker::readHeader(candidate);
        QCOMPARE(Relinker::contradictions(file, candidate),
                 (QStringList{QStringLiteral("other timecode"), QStringLiteral("other rate")}));
    }

    /// Every element of the file is written, the sequences that use it are marked, and the record tells what
    /// a new inventory would.
    void relinks()
    {
        const QString place = m_home.addFile(QStringLiteral("new/a b.mov"), "123");
        MediaProject opened;
        const QByteArray url = "file:///none/a%20b.mov";
        QVERIFY(opened.load(project(sequence("One", file("f", url)) + sequence("Two", "<file id=\"f\"/>") +
                                    sequence("Three", file("g", "file:///none/c.mov", "50")) + "<clip>" +
                                    file("f", url) + "</clip>" + "<clipitem>" + file("h", "/none/x y.mov") +
                                    "</clipitem>")));
        Relinker relinker(opened.document);
        const std::vector<MissingFile> files = relinker.missingFiles();
        QCOMPARE(files.size(), std::size_t(3));
        QCOMPARE(files[0].name, QStringLiteral("a b.mov"));
        QCOMPARE(files[1].seconds, std::optional(2.0));
        QCOMPARE(files[2].url, QStringLiteral("/none/x y.mov"));
        const FolderWalk::Found found{place, FileChecks::lookUp(QFile::encodeName(place))};
        QCOMPARE(
            relinker.relink({{files[0].url, found}, {files[2].url, found}, {QStringLiteral("other"), found}}),
            std::size_t(2));
        QCOMPARE(opened.document.modifiedSequenceUUIDs(),
                 (QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
        const QString written =
            QStringLiteral("file://") + place.section(QLatin1Char('/'), 0, -2) + QStringLiteral("/a%20b.mov");
        const QString text = XmlDocument::textOfElement(opened.document.xmlDoc()->rootElement());
        QCOMPARE(text.count(QStringLiteral("<pathurl>") + written), 2);
        QCOMPARE(text.count(QStringLiteral("none")), 1);
        const RowList &rows = opened.document.mediaArray();
        QCOMPARE(rows[0]->get(MediaKey::rawpath), written);
        QCOMPARE(rows[0]->get(MediaKey::filesize), 3);
        QCOMPARE(rows[2]->get(MediaKey::filename), QStringLiteral("a b.mov"));
        for (const std::size_t row : {0, 2})
            QVERIFY(!rows[row]->contains(MediaKey::missing) && rows[row]->contains(MediaKey::modDate));
        QVERIFY(rows[1]->get(MediaKey::missing));
    }

    /// 10,000 missing files among 200,000 take a time in proportion to both.
    void many()
    {
        std::vector<FolderWalk::Found> found;
        found.reserve(200'000);
        for (int i = 0; i < 200'000; ++i)
            found.push_back({QStringLiteral("/m/%1/Clip %2.mov").arg(i % 100).arg(i), {}});
        std::vector<MissingFile> files;
        files.reserve(10'000);
        for (int i = 0; i < 10'000; ++i)
            files.push_back(missing(QStringLiteral("/V/clip %1.MOV").arg(i * 20)));
        QElapsedTimer timer;
        timer.start();
        const std::vector<RelinkMatch> matches = Relinker::matches(files, found);
        qInfo("matched in %lld ms", timer.elapsed());
        QVERIFY(timer.elapsed() < 20'000);
        for (const RelinkMatch &match : matches)
            QCOMPARE(match.candidates.size(), std::size_t(1));
    }
};

QTEST_GUILESS_MAIN(RelinkerTest)
#include "tst_relinker.moc"

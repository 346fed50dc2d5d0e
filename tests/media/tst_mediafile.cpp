#include "media/MediaChart.h"
#include "media/MediaFile.h"

#include <QTest>

using namespace vantrell;

class MediaFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kinds()
    {
        const QStringList kinds{QStringLiteral("Movie Clip"), QStringLiteral("Audio Clip"),
                                QStringLiteral("Image"), QStringLiteral("Unknown")};
        const std::pair<QStringList, QStringList> table[] = {
            {{QStringLiteral("a.mov /b/CLIP.MOV .x.qt a.avi a.wmv a.mpg a.mp4 a.Mxf a.r3d")}, {kinds[0]}},
            {{QStringLiteral("a.wav a.mp3 a.aif a.aiff a.caf")}, {kinds[1]}},
            {{QStringLiteral("a.jpg a.tif a.tiff a.dpx a.cin a.png a.gif a.psd a.PDF")}, {kinds[2]}},
            {{QStringLiteral("archive.tar.gz mov a. .mov a.jpeg a.mov/b a.m4v")}, {kinds[3]}},
        };
        for (const auto &[paths, kind] : table) {
            for (const QString &path : paths.first().split(QLatin1Char(' ')))
                QVERIFY2(MediaFile::fileTypeForPath(path) == kind.first(), qPrintable(path));
        }
        QCOMPARE(MediaFile::fileTypeForPath(QString()), kinds[3]);
    }

    void sizes()
    {
        // Ties at the second decimal go to the even digit: 1152 is 1.125 KB, 1408 is 1.375 KB.
        const std::pair<double, const char *> table[] = {
            {0, "0 B"},
            {1023, "1023 B"},
            {1024, "1.00 KB"},
            {1152, "1.12 KB"},
            {1408, "1.38 KB"},
            {1048575, "1024.00 KB"},
            {1048576, "1.00 MB"},
            {1073741823, "1024.00 MB"},
            {1073741824, "1.00 GB"},
            {5e15, "4656612.87 GB"},
            {18446744073709551615.0, "17179869184.00 GB"},
        };
        for (const auto &[bytes, text] : table)
            QCOMPARE(MediaFile::formatFileSize(bytes), QString::fromLatin1(text));
    }

    void shortenedPaths()
    {
        const std::pair<const char *, const char *> table[] = {
            {"file://localhost/a/b", "/a/b"},
            {"file:///a", "//a"},
            {"/localhost/a", "/a"},
            {"localhost/a", "/a"},
            {"/localhostlocalhost", ""},
            {"/file:/a", "/file:/a"},
            {"", ""},
        };
        for (const auto &[path, expected] : table)
            QCOMPARE(MediaFile::formatPath(QString::fromLatin1(path)), QString::fromLatin1(expected));
    }

    void pathParts()
    {
        struct Case {
            const char *path;
            const char *filename;
            const char *directory;
            const char *joined;
        };
        const Case table[] = {
            {"/Volumes/Media/a b.mov", "a b.mov", "/Volumes/Media", "/Volumes/Media/a b.mov"},
            {"/a", "a", "/", "/a"},
            {"/", "/", "/", "/"},
            {"//", "/", "/", "/"},
            {"", "", "", ""},
            {"a.mov", "a.mov", "", "a.mov"},
            {"/a//b/", "b", "/a", "/a/b"},
            {"D:/media/c.mov", "c.mov", "D:/media", "D:/media/c.mov"},
        };
        for (const Case &row : table) {
            const MediaFile::PathParts parts = MediaFile::splitPath(QString::fromLatin1(row.path));
            QCOMPARE(parts.filename, QString::fromLatin1(row.filename));
            QCOMPARE(parts.directory, QString::fromLatin1(row.directory));
            QVERIFY(!parts.filename.isNull() && !parts.directory.isNull());
            QCOMPARE(MediaFile::joinedPath(parts.directory, parts.filename), QString::fromLatin1(row.joined));
        }
        QVERIFY(MediaFile::joinedPath(QString(), QString()).isEmpty());
        QVERIFY(!MediaFile::bootVolumeName().isEmpty());
    }

    void chartIsDrawnOnlyForASum()
    {
        QVERIFY(mediaChart(0, {}, 100, 50).slices.empty());
        QVERIFY(mediaChart(0, {0, 0}, 100, 50).slices.empty());
        QVERIFY(mediaChart(0, {5, -5}, 100, 50).slices.empty());
        QVERIFY(mediaChart(1, {1, 2}, 100, 50).slices.empty());
        const MediaChart full = mediaChart(0, {7, 0}, 100, 50);
        QCOMPARE(full.slices.size(), std::size_t(2));
        QCOMPARE(full.slices[0].sweep, 360.0);
        QCOMPARE(full.slices[1].sweep, 0.0);
    }

    void chartGeometry()
    {
        const MediaChart chart = mediaChart(0, {1, 2, 3, 3, 3}, 210, 80);
        QCOMPARE(chart.centreX, 105.0);
        QCOMPARE(chart.centreY, 40.0);
        QCOMPARE(chart.radius, 100.0);
        const double starts[] = {0, 30, 90, 180, 270};
        const double sweeps[] = {30, 60, 90, 90, 90};
        for (std::size_t i = 0; i < 5; ++i) {
            QCOMPARE(chart.slices[i].startAngle, starts[i]);
            QCOMPARE(chart.slices[i].sweep, sweeps[i]);
            QCOMPARE(chart.slices[i].startsAtCentre, i == 0);
            QCOMPARE(chart.slices[i].fill.has_value(), i < 2);
        }
        QVERIFY((chart.slices[0].fill->from == ChartColor{0.336, 0.85, 0.57, 1}));
        QVERIFY((chart.slices[1].fill->to == ChartColor{0.562, 0.65, 0.77, 1}));
        // The colour of a slice without a fill is set after its wide outline was drawn.
        const ChartColor dark{0, 0, 0.2, 1};
        const ChartColor red{0, 1, 1, 1};
        const ChartColor yellow{1.0 / 6, 1, 1, 1};
        const ChartColor wide[] = {dark, dark, dark, red, yellow};
        const ChartColor narrow[] = {dark, dark, red, yellow, ChartColor{0.5, 1, 1, 1}};
        for (std::size_t i = 0; i < 5; ++i) {
            QVERIFY(chart.slices[i].wideOutline == wide[i]);
            QVERIFY(chart.slices[i].narrowOutline == narrow[i]);
        }
        const MediaChart many = mediaChart(0, std::vector<double>(13, 1), 10, 10);
        QVERIFY((many.slices[10].narrowOutline == ChartColor{5.0 / 6, 1, 0.5, 1}));
        QVERIFY((many.slices[11].narrowOutline == ChartColor{0, 0, 0.5, 1}));
        QVERIFY((many.slices[12].narrowOutline == ChartColor{0, 0, 0.5, 1}));
    }
};

QTEST_GUILESS_MAIN(MediaFileTest)
#include "tst_mediafile.moc"

#include "media/MediaFile.h"
#include "support/files/StandardFolders.h"
#include "support/log/QVLog.h"
#include "tests/media/MediaProject.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

#include <thread>

using namespace vantrell;

namespace
{

RowRecordPtr file(const char *kind, const char *directory, const char *filename, std::int64_t size = -1)
{
    const auto record = std::make_shared<RowRecord>();
    record->set(MediaKey::filename, QString::fromUtf8(filename));
    record->set(MediaKey::directory, QString::fromUtf8(directory));
    record->set(MediaKey::filetype, QString::fromUtf8(kind));
    if (size >= 0)
        record->set(MediaKey::filesize, size);
    else
        record->set(MediaKey::missing, true);
    return record;
}

/// A document with a list of files of its own, one of them without a path.
struct FilteredMedia : MediaProject {
    FilteredMedia()
    {
        const auto pathless = std::make_shared<RowRecord>();
        pathless->set(MediaKey::missing, true);
        document.rowView(Tab::Media)
            .setList({file("Movie Clip", "/Volumes/Media", "b", 2048),
                      file("Audio Clip", "/Volumes/Media 2/x", "a", 2048), file("Image", "/home/me", "c", 0),
                      pathless, file("Unknown", "/mounts/Disk", "d", 100),
                      file("Movie Clip", "/VolumesOld", "e"), file("Audio Clip", "", "f", 3000)});
    }

    QString names() const
    {
        QString names;
        for (const RowRecordPtr &row : document.rowsOnShow(Tab::Media))
            names += row->contains(MediaKey::filename) ? row->get(MediaKey::filename) : QStringLiteral("-");
        return names;
    }
};

} // namespace

class MediaFilterTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    void view()
    {
        struct Case {
            int kind;
            const char *drive; // "" for all
            const char *sort;
            const char *names;
        };
        const Case table[] = {
            {0, "", "", "bac-def"},
            {1, "", "", "be"},
            {2, "", "", "af"},
            {3, "", "", "c"},
            {4, "", "", "bac-def"},
            {0, "/Volumes/Media", "", "ba"},
            // Neither the volumes, nor paths that only share a prefix with their folder, nor files without a
            // folder.
            {0, "/", "", "c"},
            {2, "/Volumes/Media 2", "", "a"},
            {0, "", "filename", "-abcdef"},
            {0, "", "filesize:desc", "fbadc-e"},
            {0, "", "missing filename:desc", "fdcbae-"},
        };
        StandardFolders::setVolumesFolder(QStringLiteral("/mounts"));
        for (const Case &row : table) {
            FilteredMedia media;
            media.document.rowView(Tab::Media).setSortDescriptors(sortDescriptors(row.sort));
            media.document.viewState().mediaKind = row.kind;
            media.document.viewState().mediaDrive = *row.drive ? QString::fromLatin1(row.drive) : QString();
            media.filter.changeMediaFilter();
            QCOMPARE(media.names(), QString::fromLatin1(row.names));
            QCOMPARE(media.world.events.join(QLatin1Char(',')), QStringLiteral("will reload,did reload"));
        }
        StandardFolders::setVolumesFolder(QString());
    }

    void statistics()
    {
        struct Case {
            int kind;
            qint64 total;
            const char *totalText;
            const char *shown;
            const char *largest;
            const char *smallest;
        };
        const Case table[] = {
            {0, 7196, "7.03 KB", "7", "f (2.93 KB)", "c (0 B)"},
            {1, 2048, "2.00 KB", "2", "b (2.00 KB)", "b (2.00 KB)"}, // a missing one does not count
            {3, 0, "0 B", "1", " (0 B)", "c (0 B)"},                 // an empty file is never the largest
        };
        for (const Case &row : table) {
            FilteredMedia media;
            std::vector<double> chart;
            QObject::connect(&media.filter, &MediaFilter::chartChanged, &media.filter,
                             [&chart](const std::vector<double> &values) { chart = values; });
            media.document.viewState().mediaKind = row.kind;
            media.filter.populateFilteredMediaData();
            const std::pair<Label, QByteArray> labels[] = {
                {Label::MediaTotalSize, QByteArray("Total size: ") + row.totalText},
                {Label::MediaTotalFiles, "Total number of files: 7"},
                {Label::MediaFilteredTotalSize, QByteArray("Total size of filtered media: ") + row.totalText},
                {Label::MediaFilteredTotalFiles, QByteArray("Number of filtered media files: ") + row.shown},
                {Label::MediaLargestFile, QByteArray("Largest file: ") + row.largest},
                {Label::MediaSmallestFile, QByteArray("Smallest file: ") + row.smallest},
            };
            for (const auto &[label, text] : labels)
                QCOMPARE(media.label(label).toUtf8(), text);
            QCOMPARE(media.filter.statistics().get(MediaStatisticsKey::totalSize), row.total);
            QCOMPARE(chart.at(0), double(row.total));
            QVERIFY(chart.at(1) > 0);
        }
    }

    void equalAndUnknownNames()
    {
        MediaProject media;
        media.document.rowView(Tab::Media).setList({file("Image", "/", "1", 5), file("Image", "/", "2", 5)});
        media.filter.switchMediaFilter();
        QCOMPARE(media.filter.statistics().get(MediaStatisticsKey::largestFile), QStringLiteral("1"));
        QCOMPARE(media.filter.statistics().get(MediaStatisticsKey::smallestFile), QStringLiteral("1"));
        const auto nameless = std::make_shared<RowRecord>();
        nameless->set(MediaKey::filesize, 1);
        media.document.rowView(Tab::Media).setList({nameless});
        media.filter.populateFilteredMediaData();
        QCOMPARE(media.filter.statistics().size(), std::size_t(2));
        QCOMPARE(media.label(Label::MediaLargestFile), QStringLiteral("Largest file: Unknown"));
        QCOMPARE(media.label(Label::MediaSmallestFile), QStringLiteral("Smallest file: Unknown"));
    }

    void aRebuildThatCameTooLateIsDropped()
    {
        // While a worker filters, the main thread does something; what the worker then shows, if
        // anything, must be what was asked for last.
        for (const bool isOtherTab : {false, true}) {
            FilteredMedia media;
            media.document.rowView(Tab::Media).setList(RowList(60000, media.document.mediaArray().front()));
            media.document.rowView(Tab::Media).setSortDescriptors(sortDescriptors("filename"));
            bool hasEnded = false;
            std::thread worker([&] {
                media.filter.populateFilteredMediaData();
                media.document.mainThread()->post([&] { hasEnded = true; });
            });
            MainThread::drainUntil([&] { return hasEnded; }, std::chrono::milliseconds(1));
            if (isOtherTab) {
                media.document.viewState().selectedTab = Tab::Effects;
                media.document.rowView(Tab::Effects).show({});
            } else {
                media.document.viewState().mediaKind = 3;
                media.filter.changeMediaFilter();
            }
            MainThread::drainUntil([&] { return hasEnded; }, std::chrono::seconds(40));
            worker.join();
            QCOMPARE(media.document.rowsOnShow(Tab::Media).size(), std::size_t(0));
            QCOMPARE(media.document.tableTab(), isOtherTab ? Tab::Effects : Tab::Media);
        }
    }

    void drives()
    {
        for (const char *name : {"a disk/x", "B/x", "file"})
            m_home.addFile(QStringLiteral("Volumes/") + QString::fromLatin1(name), "");
        const QString volumes = m_home.path(QStringLiteral("Volumes"));
        QVERIFY(QFile::link(volumes + QStringLiteral("/B"), volumes + QStringLiteral("/link")));
        QVERIFY(QFile::link(volumes + QStringLiteral("/none"), volumes + QStringLiteral("/dead")));
        StandardFolders::setVolumesFolder(volumes);
        std::vector<DriveItem> menu{{QStringLiteral("old"), QString()}};
        MediaFilter::populateDrivePopUp(menu);
        QString items;
        for (const DriveItem &item : menu)
            items += item.title + QLatin1Char('=') + item.path + QLatin1Char('\n');
        QCOMPARE(items.replace(volumes, QStringLiteral("V")),
                 QStringLiteral("All Drives=\n%1=/\na disk=V/a disk\nB=V/B\nlink=V/link\n")
                     .arg(MediaFile::bootVolumeName()));
        QVERIFY(menu[0].path.isNull());
        menu = {{QStringLiteral("All Drives"), QString()},
                {QStringLiteral("Root"), QStringLiteral("/")},
                {QStringLiteral("Root"), QStringLiteral("/Volumes/Root")},
                {QStringLiteral("A"), QStringLiteral("/Volumes/A")},
                {QStringLiteral("B"), QStringLiteral("/Volumes/B")},
                {QStringLiteral("A"), QStringLiteral("/mnt/A")}};
        QCOMPARE(driveTitles(menu).join(QLatin1Char('|')),
                 QStringLiteral("All Drives|Root|Root (/Volumes)|A (/Volumes)|B|A (/mnt)"));
        StandardFolders::setVolumesFolder(m_home.path(QStringLiteral("none")));
        MediaFilter::populateDrivePopUp(menu);
        QCOMPARE(menu.size(), std::size_t(2));
        StandardFolders::setVolumesFolder(QString());
    }
};

QTEST_GUILESS_MAIN(MediaFilterTest)
#include "tst_mediafilter.moc"

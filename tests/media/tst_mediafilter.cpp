#include "media/MediaFile.h"
#include "support/QVLog.h"
#include "support/StandardFolders.h"
#include "tests/media/MediaProject.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
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

RowRecordPtr fileWithoutPath()
{
    const auto record = std::make_shared<RowRecord>();
    record->set(MediaKey::missing, true);
    return record;
}

/// A document with a list of files of its own.
struct FilteredMedia {
    FilteredMedia()
        : document(world, {})
    {
        document.setListOf(Tab::Media, {file("Movie Clip", "/Volumes/Media", "b.mov", 2048),
                                        file("Audio Clip", "/Volumes/Media 2/x", "a.wav", 2048),
                                        file("Image", "/home/me", "c.png", 0), fileWithoutPath(),
                                        file("Unknown", "/mounts/Disk", "d.txt", 100),
                                        file("Movie Clip", "/VolumesOld", "e.mov"),
                                        file("Audio Clip", "", "f.wav", 3000)});
    }
    ~FilteredMedia() { document.close(); }

    QString names() const
    {
        QStringList names;
        for (const RowRecordPtr &row : document.rowsOnShow(Tab::Media))
            names.append(row->contains(MediaKey::filename) ? row->get(MediaKey::filename).left(1)
                                                           : QStringLiteral("-"));
        return names.join(QString());
    }

    ScriptedDocumentInterface world;
    MyDocument document;
    MediaFilter filter{document};
};

} // namespace

class MediaFilterTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    void view_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("drive"); // null for all
        QTest::addColumn<QString>("sort");
        QTest::addColumn<QString>("names");
        const QString all;
        QTest::newRow("everything") << 0 << all << ""
                                    << "bac-def";
        QTest::newRow("movies") << 1 << all << ""
                                << "be";
        QTest::newRow("audio") << 2 << all << ""
                               << "af";
        QTest::newRow("images") << 3 << all << ""
                                << "c";
        QTest::newRow("an item beyond the menu") << 4 << all << ""
                                                 << "bac-def";
        QTest::newRow("a drive keeps those that begin like it") << 0 << "/Volumes/Media"
                                                                << ""
                                                                << "ba";
        QTest::newRow("the root volume: neither in the volumes folder nor without a folder") << 0 << "/"
                                                                                             << ""
                                                                                             << "c";
        QTest::newRow("both") << 2 << "/Volumes/Media 2"
                              << ""
                              << "a";
        QTest::newRow("by name") << 0 << all << "filename"
                                 << "-abcdef";
        QTest::newRow("by size, downwards") << 0 << all << "filesize:desc"
                                            << "fbadc-e";
        QTest::newRow("by missing, then name") << 0 << all << "missing filename:desc"
                                               << "fdcbae-";
    }
    void view()
    {
        StandardFolders::setVolumesFolder(QStringLiteral("/mounts"));
        FilteredMedia media;
        QFETCH(QString, sort);
        std::vector<SortDescriptor> descriptors;
        for (const QString &part : sort.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            descriptors.push_back({part.section(QLatin1Char(':'), 0, 0), part.contains(QLatin1Char(':'))});
        media.world.setSortDescriptors(Tab::Media, descriptors);
        QFETCH(int, kind);
        QFETCH(QString, drive);
        media.document.viewState().mediaKind = kind;
        media.document.viewState().mediaDrive = drive.isEmpty() ? QString() : drive;
        media.filter.changeMediaFilter();
        StandardFolders::setVolumesFolder(QString());
        QTEST(media.names(), "names");
        QCOMPARE(media.document.mediaArray().size(), std::size_t(7));
        QCOMPARE(media.world.events,
                 (QStringList{QStringLiteral("will reload"), QStringLiteral("did reload")}));
    }

    void statistics_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<QString>("totalText");
        QTest::addColumn<int>("shown");
        QTest::addColumn<QString>("largest");
        QTest::addColumn<QString>("smallest");
        QTest::newRow("all") << 0 << qint64(7196) << "7.03 KB" << 7 << "f.wav (2.93 KB)"
                             << "c.png (0 B)";
        QTest::newRow("a missing file does not count")
            << 1 << qint64(2048) << "2.00 KB" << 2 << "b.mov (2.00 KB)"
            << "b.mov (2.00 KB)";
        QTest::newRow("nothing is larger than an empty file that is alone")
            << 3 << qint64(0) << "0 B" << 1 << " (0 B)"
            << "c.png (0 B)";
    }
    void statistics()
    {
        FilteredMedia media;
        QFETCH(int, kind);
        media.document.viewState().mediaKind = kind;
        media.filter.populateFilteredMediaData();
        QFETCH(qint64, total);
        QFETCH(QString, totalText);
        QFETCH(QString, largest);
        QFETCH(QString, smallest);
        QCOMPARE(media.world.label(Label::MediaTotalSize), QStringLiteral("Total size: ") + totalText);
        QCOMPARE(media.world.label(Label::MediaTotalFiles), QStringLiteral("Total number of files: 7"));
        QCOMPARE(media.world.label(Label::MediaFilteredTotalSize),
                 QStringLiteral("Total size of filtered media: ") + totalText);
        QTEST(media.world.label(Label::MediaFilteredTotalFiles).section(QLatin1Char(' '), -1).toInt(),
              "shown");
        QCOMPARE(media.world.label(Label::MediaLargestFile), QStringLiteral("Largest file: ") + largest);
        QCOMPARE(media.world.label(Label::MediaSmallestFile), QStringLiteral("Smallest file: ") + smallest);
        QCOMPARE(media.filter.statistics().get(MediaStatisticsKey::totalSize), total);
        QCOMPARE(media.world.mediaChart().size(), std::size_t(2));
        QCOMPARE(media.world.mediaChart()[0], double(total));
        QVERIFY(media.world.mediaChart()[1] > 0);
    }

    void equalSizesNameTheFirst()
    {
        FilteredMedia media;
        media.document.setListOf(Tab::Media, {file("Image", "/", "1", 5), file("Image", "/", "2", 5)});
        media.filter.switchMediaFilter();
        const RowRecord &statistics = media.filter.statistics();
        QCOMPARE(statistics.get(MediaStatisticsKey::largestFile), QStringLiteral("1"));
        QCOMPARE(statistics.get(MediaStatisticsKey::smallestFile), QStringLiteral("1"));
        QCOMPARE(statistics.keyAt(1).text(), QStringLiteral("largestFileSize"));
        QCOMPARE(statistics.keyAt(4).text(), QStringLiteral("smallestFile"));
    }

    void unknownNamesEndTheStatistics()
    {
        FilteredMedia media;
        const auto nameless = std::make_shared<RowRecord>();
        nameless->set(MediaKey::filesize, 1);
        media.document.setListOf(Tab::Media, {nameless});
        media.filter.populateFilteredMediaData();
        QCOMPARE(media.filter.statistics().size(), std::size_t(2));
        QCOMPARE(media.world.label(Label::MediaLargestFile), QStringLiteral("Largest file: Unknown"));
        QCOMPARE(media.world.label(Label::MediaSmallestFile), QStringLiteral("Smallest file: Unknown"));
    }

    void aRebuildThatCameTooLateIsDropped()
    {
        // While a worker filters, the main thread does something; what the worker then shows, if
        // anything, must be what was asked for last.
        for (const bool isOtherTab : {false, true}) {
            FilteredMedia media;
            RowList many(60000, media.document.mediaArray().front());
            media.document.setListOf(Tab::Media, many);
            media.world.setSortDescriptors(Tab::Media, {{QStringLiteral("filename"), false}});
            bool hasEnded = false;
            std::thread worker([&] {
                media.filter.populateFilteredMediaData();
                media.document.mainThread()->post([&] { hasEnded = true; });
            });
            MainThread::drainUntil([&] { return !media.world.events.isEmpty() || hasEnded; },
                                   std::chrono::milliseconds(1));
            if (isOtherTab) {
                media.document.viewState().selectedTab = Tab::Effects;
                media.document.setTableArray(Tab::Effects, {});
            } else {
                media.document.viewState().mediaKind = 3;
                media.filter.changeMediaFilter();
            }
            MainThread::drainUntil([&] { return hasEnded; }, std::chrono::seconds(60));
            worker.join();
            QCOMPARE(media.document.rowsOnShow(Tab::Media).size(), std::size_t(0));
            QCOMPARE(media.document.tableTab(), isOtherTab ? Tab::Effects : Tab::Media);
        }
    }

    void drives()
    {
        const QString boot = MediaFile::bootVolumeName();
        m_home.addFile(QStringLiteral("Volumes/a disk/x"), "");
        m_home.addFile(QStringLiteral("Volumes/B/x"), "");
        m_home.addFile(QStringLiteral("Volumes/file"), "");
        const QString volumes = m_home.path(QStringLiteral("Volumes"));
        QVERIFY(QFile::link(volumes + QStringLiteral("/B"), volumes + QStringLiteral("/link")));
        QVERIFY(QFile::link(volumes + QStringLiteral("/none"), volumes + QStringLiteral("/dead")));
        StandardFolders::setVolumesFolder(volumes);
        std::vector<DriveItem> menu{{QStringLiteral("old"), QString()}};
        MediaFilter::populateDrivePopUp(menu);
        QStringList items;
        for (const DriveItem &item : menu)
            items.append(item.title + QLatin1Char('=') +
                         QString(item.path).replace(volumes, QStringLiteral("V")));
        QCOMPARE(items, (QStringList{QStringLiteral("All Drives="), boot + QStringLiteral("=/"),
                                     QStringLiteral("a disk=V/a disk"), QStringLiteral("B=V/B"),
                                     QStringLiteral("link=V/link")}));
        QVERIFY(menu[0].path.isNull());
        StandardFolders::setVolumesFolder(m_home.path(QStringLiteral("none")));
        MediaFilter::populateDrivePopUp(menu);
        QCOMPARE(menu.size(), std::size_t(2));
        StandardFolders::setVolumesFolder(QString());
    }
};

QTEST_GUILESS_MAIN(MediaFilterTest)
#include "tst_mediafilter.moc"

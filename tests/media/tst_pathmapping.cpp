#include "media/PathMapping.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "tests/media/MediaProject.h"
#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"

#include <QTest>

using namespace vantrell;

class PathMappingTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    void places_data()
    {
        QTest::addColumn<QStringList>("mappings");
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("place");

        const auto row = [](const char *name, const QStringList &mappings, const char *url,
                            const char *place) {
            QTest::newRow(name) << mappings << QString::fromUtf8(url) << QString::fromUtf8(place);
        };
        const QStringList raid{QStringLiteral("/Volumes/RAID/Show=/mnt/raid/show")};
        row("below", raid, "file://localhost/Volumes/RAID/Show/a%20b.mov", "/mnt/raid/show/a b.mov");
        row("itself", raid, "file:///Volumes/RAID/Show", "/mnt/raid/show");
        row("only begins alike", raid, "file:///Volumes/RAID/Show2/a.mov", "/Volumes/RAID/Show2/a.mov");
        row("other case", raid, "file:///Volumes/raid/Show/a.mov", "/Volumes/raid/Show/a.mov");
        row("any server", raid, "file://server/Volumes/RAID/Show/a.mov", "/mnt/raid/show/a.mov");
        row("longest", {QStringLiteral("/V=/1"), QStringLiteral("/V/a/=/2/"), QStringLiteral("/=/3")},
            "file:///V/a/b.mov", "/2/b.mov");
        row("root", {QStringLiteral("/=/3")}, "file:///V/a.mov", "/3/V/a.mov");
        row("to the root", {QStringLiteral("/V=/")}, "file:///V/a.mov", "/a.mov");
        row("last word", {QStringLiteral("/V=/1"), QStringLiteral("/V=/2=x")}, "file:///V/a.mov",
            "/2=x/a.mov");
        row("drive letter", {QStringLiteral("c:\\Media=/mnt")}, "file://localhost/C%3a/media/x/a.mov",
            "/mnt/x/a.mov");
        row("drive", {QStringLiteral("C:=/mnt/c")}, "file://localhost/C%3a/media/a.mov",
            "/mnt/c/media/a.mov");
        row("drive as a URL", {QStringLiteral("file://localhost/C%3a/Media=/mnt")}, "file:///C:/MEDIA/a.mov",
            "/mnt/a.mov");
        row("server", {QStringLiteral("\\\\NAS\\Share=/mnt")}, "file://nas/share/a.mov", "/mnt/a.mov");
        row("other server", {QStringLiteral("//nas/share=/mnt")}, "file://nas2/share/a.mov", "/share/a.mov");
        row("server in the path", {QStringLiteral("//nas/share=/mnt")}, "file://localhost//NAS/share/a.mov",
            "/mnt/a.mov");
        row("server URL", {QStringLiteral("smb://nas/share=/mnt")}, "smb://nas/Share/a.mov", "/mnt/a.mov");
        row("other scheme", {QStringLiteral("smb://nas/share=/mnt")}, "afp://nas/share/a.mov",
            "/share/a.mov");
        // The folder is composed in the mapping, the path decomposed; its rest stays so.
        row("Unicode form", {QStringLiteral("/V/\u00e9=/mnt")}, "file:///V/e%CC%81/e%CC%81.mov",
            "/mnt/e\xCC\x81.mov");
        row("relative", {QStringLiteral("Footage=/mnt")}, "Footage/a.mov", "/mnt/a.mov");
    }

    void places()
    {
        QFETCH(const QStringList, mappings);
        QFETCH(const QString, url);
        PathMappings set;
        for (const QString &text : mappings) {
            const auto mapping = PathMappings::parse(text);
            QVERIFY(mapping && set.add(mapping->from, mapping->to));
        }
        QTEST(set.placeOf(url, QVXMLParser::filenameFromPathURLString(url).value()), "place");
        UserDefaults defaults(m_home.path(QStringLiteral("d.plist")));
        set.store(defaults);
        UserDefaults readAgain(m_home.path(QStringLiteral("d.plist")));
        QCOMPARE(PathMappings::stored(readAgain).list(), set.list());
    }

    void refused()
    {
        for (const char *text : {"", "=", "a", "=/b", "a="})
            QVERIFY2(!PathMappings::parse(QString::fromLatin1(text)), text);
        PathMappings mappings;
        QVERIFY(!mappings.add(QStringLiteral("/a"), QStringLiteral("b")));
        QVERIFY(mappings.isEmpty());
        QCOMPARE(PathMappings::parse(QStringLiteral("/a=b/../c"))->to,
                 QDir::currentPath() + QStringLiteral("/c"));
    }

    void suggestions()
    {
        const auto pair = [](const char *path, const char *found) {
            return std::pair(QString::fromUtf8(path), QString::fromUtf8(found));
        };
        const std::vector<PathMapping> suggested = suggestedMappings(
            {pair("/V/X/a.mov", "/y/a.mov"), pair("/Volumes/RAID/Show/d/a.mov", "/mnt/show/d/a.mov"),
             pair("/Volumes/RAID/Show/e/\xC3\xA9.mov", "/mnt/show/e/e\xCC\x81.mov"),
             pair("/V/a.mov", "/V/a.mov"), pair("/V/a.mov", "/V/b.mov")});
        QCOMPARE(suggested, (std::vector<PathMapping>{
                                {QStringLiteral("/Volumes/RAID/Show"), QStringLiteral("/mnt/show")},
                                {QStringLiteral("/V/X"), QStringLiteral("/y")}}));
    }

    /// What the disk says comes from the other place, what the record says of the file from the project.
    void inventory()
    {
        m_home.addFile(QStringLiteral("raid/a.mov"), QByteArray(7, 'x'));
        MediaProject opened;
        PathMappings mappings;
        QVERIFY(mappings.add(QStringLiteral("/Volumes/RAID"), m_home.path(QStringLiteral("raid"))));
        opened.inventory.setPathMappings(mappings);
        QVERIFY(opened.load(
            "<xmeml><clipitem><file><pathurl>file:///Volumes/RAID/a.mov</pathurl></file></clipitem>"
            "</xmeml>"));
        const RowList &rows = opened.document.mediaArray();
        QCOMPARE(rows.size(), std::size_t(1));
        QCOMPARE(rows[0]->get(MediaKey::filesize), 7);
        QVERIFY(!rows[0]->contains(MediaKey::missing) && rows[0]->contains(MediaKey::modDate));
        QCOMPARE(rows[0]->get(MediaKey::directory), QStringLiteral("/Volumes/RAID"));
        QCOMPARE(opened.inventory.placesOf(rows), QStringList(m_home.path(QStringLiteral("raid/a.mov"))));
    }
};

QTEST_GUILESS_MAIN(PathMappingTest)
#include "tst_pathmapping.moc"

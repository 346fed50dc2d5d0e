#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace vantrell;

namespace
{

QByteArray item(const QByteArray &id, const QByteArray &url, const QByteArray &in, const QByteArray &out)
{
    return "<clipitem><in>" + in + "</in><out>" + out + "</out><file id=\"" + id + "\"><pathurl>" + url +
           "</pathurl><duration>100</duration></file></clipitem>";
}

QByteArray sequence(const QByteArray &name, const QByteArray &video, const QByteArray &audio)
{
    return "<sequence><uuid>" + name + "</uuid><name>" + name + "</name><media><video><track>" + video +
           "</track></video><audio><track>" + audio + "</track></audio></media></sequence>";
}

} // namespace

class MediaHandoverTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;
    QString m_project;
    QByteArray m_folder; // of the media

    CliRun run(const QStringList &arguments) const { return runCli(arguments + QStringList(m_project)); }
    CliRun media(const char *arguments) const
    {
        return run(QStringList(QStringLiteral("media")) +
                   QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }

private Q_SLOTS:
    /// Two sequences; a.mov is in both, b.wav in the second one as audio, c.mov in a bin; d.mov is missing.
    void initTestCase()
    {
        m_folder = m_home.path(QStringLiteral("m/")).toUtf8();
        m_home.addFile(QStringLiteral("m/a.mov"), "abc");
        m_home.addFile(QStringLiteral("m/b.wav"), "");
        m_home.addFile(QStringLiteral("m/c.mov"), "c");
        const QByteArray url = "file://localhost" + m_folder;
        m_project = m_home.addFile(
            QStringLiteral("p.xml"),
            "<xmeml><project><children>" + sequence("One", item("a", url + "a.mov", "10", "20"), "") +
                sequence("Two",
                         "<clipitem><in>15</in><out>30</out><file id=\"a\"/></clipitem>" +
                             item("d", "file:///none/d.mov", "0", "100"),
                         item("b", url + "b.wav", "0", "50")) +
                "<clip>" + item("c", url + "c.mov", "0", "1") + "</clip></children></project></xmeml>");
    }

    void filters()
    {
        const std::pair<const char *, QByteArray> table[] = {
            {"", "a.mov d.mov b.wav c.mov"},
            {"--sequence 1", "a.mov"},
            {"--sequence Two", "a.mov d.mov b.wav"},
            {"--sequence 1 --sequence Two --kind audio", "b.wav"},
            {"--missing", "d.mov"},
            {"--unused", "c.mov"},
            {"--unused --sequence 1", "d.mov b.wav c.mov"},
            {"--search /M/A", "a.mov"},
            {"--missing --map /none=/none/../nowhere", "d.mov"},
        };
        for (const auto &[arguments, names] : table) {
            const CliRun listed = media(arguments);
            QCOMPARE(listed.status, 0);
            QByteArrayList found;
            for (const QByteArray &line : listed.output.trimmed().split('\n').sliced(1))
                found.append(line.split('\t').first());
            QCOMPARE(found.join(' '), names);
        }
        QByteArray mapped = "--missing --map /none=" + m_folder;
        QFile::copy(QString::fromUtf8(m_folder + "a.mov"), QString::fromUtf8(m_folder + "d.mov"));
        QCOMPARE(media(mapped.constData()).output.count('\n'), 1);
        QFile::remove(QString::fromUtf8(m_folder + "d.mov"));
    }

    void uses()
    {
        QCOMPARE(media("--uses --json --handles 5").output,
                 "{\"files\":[{\"path\":\"" + m_folder +
                     "a.mov\",\"ranges\":[[5,35]],\"used\":30,\"length\":100,\"uses\":2,\"sequences\":[1,2],"
                     "\"state\":\"used\"},{\"path\":\"/none/"
                     "d.mov\",\"ranges\":[[0,100]],\"used\":100,\"length\":100,"
                     "\"uses\":1,\"sequences\":[2],\"state\":\"missing\"},{\"path\":\"" +
                     m_folder +
                     "b.wav\",\"ranges\":[[0,55]],\"used\":55,\"length\":100,\"uses\":1,\"sequences\":[2],"
                     "\"state\":\"used\"},{\"path\":\"" +
                     m_folder +
                     "c.mov\",\"ranges\":[],\"used\":0,\"length\":100,\"uses\":0,\"sequences\":[],"
                     "\"state\":\"unused\"}]}\n");
        QCOMPARE(media("--uses --sequence One").output,
                 "File\tState\tUses\tUsed\tLength\tRanges\tSequences\tNotes\n" + m_folder +
                     "a.mov\tused\t1\t10\t100\t10-20\t1\t\n");
    }

    void check()
    {
        const CliRun all = media("--check --json");
        QCOMPARE(all.status, 3);
        QCOMPARE(all.output, QByteArray("{\"files\":[{\"path\":\"/none/d.mov\",\"state\":\"missing\"}]}\n"));
        const CliRun well = media("--check --json --sequence One");
        QCOMPARE(well.status, 0);
        QCOMPARE(well.output, QByteArray("{\"files\":[]}\n"));
    }

    /// A list is made, found to be true, and no longer after a file was changed.
    void lists()
    {
        const QString list = QString::fromUtf8(m_folder + "list.mhl");
        const CliRun written = run({QStringLiteral("media"), QStringLiteral("--list"), QStringLiteral("mhl"),
                                    QStringLiteral("-o"), list, QStringLiteral("--unused"),
                                    QStringLiteral("--sequence"), QStringLiteral("1")});
        QCOMPARE(written.status, 0);
        QCOMPARE(written.messages, QByteArray("vantrell-cli: 1 missing files are not in the list.\n"));
        const QByteArray content = contentOf(list);
        QVERIFY(content.contains("<file>b.wav</file>\n    <size>0</size>"));
        QVERIFY(content.contains("<md5>d41d8cd98f00b204e9800998ecf8427e</md5>\n"
                                 "    <xxhash64be>ef46db3751d8e999</xxhash64be>"));
        QVERIFY(content.contains("<file>c.mov</file>") && !content.contains("a.mov"));
        const QStringList verify{QStringLiteral("media"), QStringLiteral("--verify"), list,
                                 QStringLiteral("--json")};
        const CliRun same = runCli(verify);
        QCOMPARE(same.status, 0);
        QCOMPARE(same.output, QByteArray("{\"files\":[{\"path\":\"b.wav\",\"state\":\"same\"},"
                                         "{\"path\":\"c.mov\",\"state\":\"same\"}]}\n"));
        QByteArray check = "--check --verify " + list.toUtf8() + " --search c.mov";
        QCOMPARE(media(check.constData()).status, 0);
        m_home.addFile(QStringLiteral("m/c.mov"), "d");
        QFile file(QString::fromUtf8(m_folder + "c.mov"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::fromMSecsSinceEpoch(1000), QFileDevice::FileModificationTime));
        file.close();
        const CliRun changed = runCli(verify);
        QCOMPARE(changed.status, 3);
        QVERIFY(changed.output.contains("{\"path\":\"c.mov\",\"state\":\"changed\"}"));
        const CliRun checked = media(check.constData());
        QCOMPARE(checked.status, 3);
        QCOMPARE(checked.output, "File\tState\n" + m_folder + "c.mov\tchanged\n");
        QCOMPARE(run(verify + QStringList{QStringLiteral("--search"), QStringLiteral("b.wav")}).status, 0);

        QCOMPARE(media("--list rsync --kind movie").output, m_folder + "a.mov\n" + m_folder + "c.mov\n");
        QCOMPARE(media("--list rsync0 --missing").output, QByteArray("/none/d.mov\0", 12));
        const QByteArray csv = media("--list csv --kind audio").output;
        QVERIFY(
            csv.startsWith("Name,Kind,Size,Date Modified,Usage,Uses,Missing,Folder,Path,Used Frames,Length,"
                           "Sequences\r\nb.wav,Audio Clip,0,"));
        QVERIFY(csv.endsWith("Z,0,1,," + m_folder.chopped(1) + ',' + m_folder + "b.wav,50,100,2\r\n"));
    }

    void relinks()
    {
        const QString found = m_home.addFile(QStringLiteral("r/x/D.MOV"), "d");
        const QString output = m_home.path(QStringLiteral("out.xml"));
        const QStringList arguments{QStringLiteral("relink"), m_project, QStringLiteral("--json"),
                                    QStringLiteral("--search"), m_home.path(QStringLiteral("r"))};
        const QByteArray match = "{\"files\":[{\"old\":\"file:///none/d.mov\",\"new\":\"" + found.toUtf8() +
                                 "\",\"state\":\"found\"}],\"relinked\":";
        const CliRun preview = runCli(arguments + QStringList(QStringLiteral("--preview")));
        QCOMPARE(preview.status, 0);
        QCOMPARE(preview.output, match + "0}\n");
        const QStringList writing{QStringLiteral("-o"), output};
        QCOMPARE(runCli(arguments + writing).output, match + "1}\n");
        QVERIFY(contentOf(output).contains("<pathurl>file://" + found.toUtf8() + "</pathurl>"));
        QCOMPARE(runCli({QStringLiteral("media"), QStringLiteral("--check"), output}).status, 0);

        const QString second = m_home.addFile(QStringLiteral("r/y/D.MOV"), "d");
        QCOMPARE(runCli(arguments + writing).output,
                 "{\"files\":[{\"old\":\"file:///none/d.mov\",\"state\":\"several\",\"candidates\":[\"" +
                     found.toUtf8() + "\",\"" + second.toUtf8() + "\"]}],\"relinked\":0}\n");
        QVERIFY(contentOf(output).contains("<pathurl>file:///none/d.mov</pathurl>"));
        const QStringList elsewhere{QStringLiteral("relink"), QStringLiteral("--search"),
                                    QString::fromUtf8(m_folder), m_project, QStringLiteral("--preview")};
        QCOMPARE(runCli(elsewhere).output,
                 QByteArray("File\tState\tFound\tMatch\nfile:///none/d.mov\tmissing\t\t\n"));
    }

    void wrongUsage()
    {
        const QString none = m_home.path(QStringLiteral("none"));
        const std::pair<QStringList, int> table[] = {
            {{QStringLiteral("media")}, 2},
            {{QStringLiteral("media"), QStringLiteral("--map"), QStringLiteral("a"), m_project}, 2},
            {{QStringLiteral("media"), QStringLiteral("--handles"), QStringLiteral("-1"), m_project}, 2},
            {{QStringLiteral("media"), QStringLiteral("--uses"), QStringLiteral("--check"), m_project}, 2},
            {{QStringLiteral("media"), QStringLiteral("-o"), none, m_project}, 2},
            {{QStringLiteral("media"), QStringLiteral("--sequence"), QStringLiteral("3"), m_project}, 1},
            {{QStringLiteral("media"), QStringLiteral("--verify"), none}, 1},
            {{QStringLiteral("relink"), m_project, QStringLiteral("--search"), none,
              QStringLiteral("--preview")},
             1},
            {{QStringLiteral("relink"), m_project, QStringLiteral("--search"), m_home.path()}, 2},
            {{QStringLiteral("relink"), m_project, QStringLiteral("--preview")}, 2},
        };
        for (const auto &[arguments, status] : table) {
            const CliRun refused = runCli(arguments);
            QVERIFY2(refused.status == status, qPrintable(arguments.join(QLatin1Char(' '))));
            QCOMPARE(refused.output, QByteArray());
            QVERIFY(!refused.messages.isEmpty());
        }
        QVERIFY(!QFile::exists(none));
    }
};

QTEST_GUILESS_MAIN(MediaHandoverTest)
#include "tst_mediahandover.moc"

#include "bridge/EscapedXmlBuffer.h"
#include "bridge/OutputDocument.h"
#include "bridge/QVAppleEvents.h"
#include "support/files/StandardFolders.h"
#include "support/settings/UserDefaults.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

using namespace vantrell;

namespace
{

const QString newUuid = QStringLiteral("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}");

QByteArray sequence(const QByteArray &id, const QByteArray &uuids)
{
    return "<sequence id=\"" + id + "\" x=\"1\"><name>N</name>" + uuids +
           "<rest a=\"b\">&amp;</rest></sequence>";
}

} // namespace

class OutputDocumentTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    /// The ids of the sequences in the output for these modified UUIDs.
    QString outputFor(const QByteArray &xml, const QStringList &uuids, QString *whole = nullptr)
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        document.readFromURL(QUrl::fromLocalFile(m_home.addFile(QStringLiteral("p.xml"), xml)),
                             DocumentType::publicXML);
        MainThread::drainUntil([&world] { return world.ended; });
        const QString before = XmlDocument::textOfElement(document.xmlDoc()->rootElement());
        for (const QString &uuid : uuids)
            document.addModifiedSequenceUUID(uuid);
        const QString output = OutputDocument(document).generateXMLOutput();
        if (whole)
            *whole = output;
        if (XmlDocument::textOfElement(document.xmlDoc()->rootElement()) != before)
            return QStringLiteral("the project changed");
        const auto parsed = XmlDocument::fromData(output.toUtf8(), {false, nullptr});
        if (!parsed)
            return parsed.message();
        QStringList ids;
        XmlNode child = parsed.value()->rootElement().childElement("bin").childElement("children");
        for (child = child.firstChildElement(); child; child = child.nextSiblingElement())
            ids.append(child.attribute("id").section(QLatin1Char('-'), 0, 0));
        return ids.join(QLatin1Char(' '));
    }

private Q_SLOTS:
    void wholeText()
    {
        QString text;
        QCOMPARE(outputFor("<xmeml>" + sequence("Sequence 1", "<uuid>U</uuid><uuid>V</uuid>") + "</xmeml>",
                           {QStringLiteral("U")}, &text),
                 QStringLiteral("Sequence 1"));
        const QString expected =
            QStringLiteral(
                "<\\?xml version=\"1.0\" encoding=\"UTF-8\"\\?><!DOCTYPE xmeml><xmeml "
                "version=\"5\"><bin><uuid>%1"
                "</uuid><updatebehavior>add</updatebehavior><name>Vantrell</name><children>"
                "<sequence id=\"Sequence 1-Processed\"><name>Sequence 1-Processed</name><uuid>%1</uuid>"
                "<uuid>V</uuid><rest a=\"b\">&amp;</rest></sequence></children></bin></xmeml>")
                .arg(newUuid);
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(expected)).match(text).hasMatch(),
                 qPrintable(text));
    }

    void sequencesFound_data()
    {
        QTest::addColumn<QString>("uuids");
        QTest::addColumn<QString>("ids");
        const auto add = [](const char *uuids, const char *ids) {
            QTest::newRow(uuids) << QString::fromLatin1(uuids) << QString::fromLatin1(ids);
        };
        add("", "");
        add("none", "");
        add("U2 U1", "b a"); // the list's order; of equal UUIDs the first in the document
        add("U1 U1", "a a");
        add("old", "c");
        add("U3 old", "c c");
        add("two", "d"); // any text in the element counts
        add("x\"y", ""); // no query can hold it
        add("p&q", "e");
        add("p&amp;q", "e");
        add("\" or \"1\"=\"1", "a"); // is a query of its own
        add("nested", "g");
    }
    void sequencesFound()
    {
        const QByteArray xml =
            "<xmeml><project><children>" + sequence("a", "<uuid>U1</uuid>") +
            sequence("b", "<uuid>U2</uuid>") + sequence("x", "<uuid>U1</uuid>") +
            sequence("c", "<uuid>U3</uuid><itemhistory><uuid>old</uuid></itemhistory>") +
            sequence("d", "<uuid>one<i/>two</uuid>") + sequence("e", "<uuid>p&amp;q</uuid>") +
            sequence("f", "<clip><uuid>clip</uuid>" + sequence("g", "<uuid>nested</uuid>") + "</clip>") +
            "</children></project></xmeml>";
        QFETCH(QString, uuids);
        const QStringList list = uuids.contains(QLatin1Char('='))
                                     ? QStringList(uuids)
                                     : uuids.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        QTEST(outputFor(xml, list), "ids");
    }

    void manySequences()
    {
        QByteArray xml = "<xmeml>";
        QStringList uuids;
        for (int i = 0; i < 5000; ++i) {
            xml += sequence(QByteArray::number(i), "<uuid>u" + QByteArray::number(i) + "</uuid>");
            uuids.prepend(QStringLiteral("u%1").arg(i));
        }
        const QString ids = outputFor(xml + "</xmeml>", uuids);
        QVERIFY(ids.startsWith(QStringLiteral("4999 4998 ")) && ids.endsWith(QStringLiteral(" 1 0")));
    }

    void versions_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<int>("major");
        QTest::addColumn<int>("xmeml");
        const auto add = [](const char *version, int major, int xmeml) {
            QTest::newRow(version) << QString::fromLatin1(version) << major << xmeml;
        };
        add("7.0.3", 7, 5);
        add("7.0", 7, 5);
        add("7", 7, 5);
        add("6.0.6", 6, 4);
        add("5.1.1", 5, 2);
        add("5.1", 5, 2);
        add("5.1.2", 5, 3);
        add("5", 5, 3);
        add("5.0", 5, 3);
        add("4.5", 4, 1);
        add("10.1", 1, 5);
        add("", 7, 1);
        add("beta", 0, 1);
    }
    void versions()
    {
        QFETCH(QString, version);
        QTEST(int(QVAppleEvents::majorVersionOf(version)), "major");
        QTEST(int(QVAppleEvents::maximumXMEMLVersionOf(version)), "xmeml");
        QCOMPARE(QVAppleEvents::maximumXMEMLVersionOf(QString()), std::int64_t(1));
    }

    void installedVersion()
    {
        UserDefaults::standard().setValue(QStringLiteral("applicationsFolder"),
                                          m_home.path(QStringLiteral("apps")));
        QCOMPARE(QVAppleEvents::finalCutProVersionString(), QStringLiteral("7.0"));
        const auto install = [this](const char *bundle, const QByteArray &content) {
            m_home.addFile(QStringLiteral("apps/%1/Contents/Info.plist").arg(QLatin1String(bundle)),
                           "<plist version=\"1.0\"><dict>" + content + "</dict></plist>");
        };
        const auto version = [](const char *text) {
            return QByteArray("<key>CFBundleShortVersionString</key><string>") + text + "</string>";
        };
        install("Final Cut Pro.app", version("5.1.1"));
        QCOMPARE(QVAppleEvents::maximumXMEMLVersion(), std::int64_t(2));
        install("Final Cut Studio/Final Cut Pro.app", version("6.0"));
        QCOMPARE(QVAppleEvents::maximumXMEMLVersion(), std::int64_t(4));
        install("Editor.app", "<key>CFBundleIdentifier</key><string>com.apple.FinalCutPro</string>");
        QVERIFY(QVAppleEvents::finalCutProVersionString().isNull());
        QCOMPARE(QVAppleEvents::finalCutProMajorVersion(), std::int64_t(7));
        UserDefaults::standard().removeValue(QStringLiteral("applicationsFolder"));
    }

    void texts()
    {
        QCOMPARE(QVAppleEvents::escapeCharactersInXMLString(QStringLiteral("Café\r\n<&>\x9f\U0001F3AC")),
                 QStringLiteral("Caf&#233;&#13;\n<&>\x9f&#55356;&#57260;"));
        QCOMPARE(QVAppleEvents::formatData(QByteArray("ab\0\0", 4)), QByteArray("ab\0", 3));
        QCOMPARE(QVAppleEvents::formatData("ab"), QByteArray("ab"));
        QCOMPARE(QVAppleEvents::formatData(QByteArray()), QByteArray());
        const QString uuid = QVAppleEvents::generateUUID();
        QVERIFY(QRegularExpression(QRegularExpression::anchoredPattern(newUuid)).match(uuid).hasMatch());
        QVERIFY(uuid != QVAppleEvents::generateUUID());
    }

    /// As bytes the text becomes the same, wherever the writes are cut.
    void escapedBytes_data()
    {
        QTest::addColumn<QByteArray>("utf8");
        QTest::addColumn<QByteArray>("escaped");
        QTest::newRow("empty") << QByteArray("") << QByteArray("");
        QTest::newRow("markup") << QByteArray("<a b=\"c\">&amp;</a>\r\n")
                                << QByteArray("<a b=\"c\">&amp;</a>&#13;\n");
        // The last that is copied and the first that is not, then two, three and four bytes.
        QTest::newRow("characters") << QByteArray("\x7f\xC2\x9f\xC2\xA0\xC3\xA9\xE7\x89\x87\xF0\x9F\x8E\xAC.")
                                    << QByteArray("\x7f\xC2\x9f&#160;&#233;&#29255;&#55356;&#57260;.");
        QTest::newRow("the last character")
            << QByteArray("\xF4\x8F\xBF\xBF") << QByteArray("&#56319;&#57343;");
        QTest::newRow("what is no UTF-8")
            << QByteArray("a\xC3<b\x80\xFF>") << QByteArray("a&#65533;<b&#65533;&#65533;>");
    }
    void escapedBytes()
    {
        QFETCH(QByteArray, utf8);
        QFETCH(QByteArray, escaped);
        for (qsizetype first = 0; first <= utf8.size(); ++first) {
            for (qsizetype second = first; second <= utf8.size(); ++second) {
                EscapedXmlBuffer buffer;
                for (const QByteArray &part :
                     {utf8.first(first), utf8.sliced(first, second - first), utf8.sliced(second)})
                    QCOMPARE(buffer.write(part), part.size());
                QCOMPARE(buffer.take(), escaped);
            }
        }
        QCOMPARE(QVAppleEvents::escapeCharactersInXMLString(QString::fromUtf8(utf8)).toUtf8(), escaped);
    }

    void writtenToAFile()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        const QString source = m_home.addFile(
            QStringLiteral("p.xml"), "<xmeml>" + sequence("s", "<uuid>U</uuid><x>é</x>") + "</xmeml>");
        document.readFromURL(QUrl::fromLocalFile(source), DocumentType::publicXML);
        MainThread::drainUntil([&world] { return world.ended; });
        document.addModifiedSequenceUUID(QStringLiteral("U"));
        const QString target = m_home.addFile(QStringLiteral("bin.xml"), "old");
        QVERIFY(OutputDocument(document).writeChangedSequences(target));
        const QByteArray written = contentOf(target);
        QVERIFY2(written.contains("<sequence id=\"s-Processed\">") && written.contains("<x>é</x>"),
                 written.constData());
        QVERIFY(written.endsWith("</children></bin></xmeml>"));
        QVERIFY(!OutputDocument(document).writeChangedSequences(m_home.path(QStringLiteral("none/bin.xml"))));
    }

    void sequenceWithoutIdNameOrUuid()
    {
        const auto tree = XmlDocument::fromData("<sequence b=\"1\"><x/></sequence>", {});
        const XmlNode root = tree.value()->rootElement();
        QVERIFY(OutputDocument::renameSequence(root) == root);
        QCOMPARE(XmlDocument::textOfElement(root),
                 QStringLiteral("<sequence id=\"-Processed\"><x/></sequence>"));
    }
};

QTEST_GUILESS_MAIN(OutputDocumentTest)
#include "tst_outputdocument.moc"

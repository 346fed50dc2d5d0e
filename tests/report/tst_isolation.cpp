#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QtEndian>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(40000) ? process.readAllStandardOutput() : QByteArray();
}

/// In pixels.
int widthOf(const QString &png)
{
    constexpr int offset = 16;
    const QByteArray bytes = contentOf(png);
    return bytes.size() > offset + 4 ? int(qFromBigEndian<quint32>(bytes.constData() + offset)) : 0;
}

} // namespace

/// Projects whose marker names attempt what a report must not do: a PDF is made of each, complete with the
/// rest of the project, and the attempt has no effect.
class TestIsolation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_server.listen(QHostAddress::LocalHost));
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *const socket = m_server.nextPendingConnection())
                delete socket;
            ++m_connections;
        });
        QVERIFY(QFile::copy(qEnvironmentVariable("VANTRELL_SOURCE_DIR") +
                                u"/app/icons/hicolor/48x48/apps/vantrell.png"_s,
                            m_home.path(u"secret.png"_s)));
        m_home.addFile(u"secret.html"_s, "<html><body>SECRET</body></html>");
        m_home.addFile(u"secret.txt"_s, "SECRET");
        m_home.addFile(u"secret.css"_s, "h1::after {content: 'SECRET'}");
        m_home.addFile(
            u"secret.svg"_s,
            "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='40'><text>SECRET</text></svg>");
    }

    void attempts_data()
    {
        QTest::addColumn<QString>("name");
        // @H stands for the test's server, @F for the home folder as an address.
        const struct {
            const char *what;
            const char *name;
        } rows[] = {
            {"script", "<script>document.body.innerHTML = 'SECRET'; new Image().src = '@H/s'</script>"},
            {"script from a host", "<script src='@H/s.js'></script>"},
            {"event handler",
             "<img src='nothing' onerror=\"document.body.innerHTML='SECRET';fetch('@H/e')\">"},
            {"handlers of svg and details", "<svg onload=\"document.title=1;fetch('@H/o')\"></svg><details "
                                            "open ontoggle=\"fetch('@H/d')\">"},
            {"focus", "<input autofocus onfocus=\"document.body.innerHTML='SECRET'\">"},
            {"address of a script",
             "<iframe src=\"javascript:parent.document.body.innerHTML='SECRET'\"></iframe>"},
            {"remote image",
             "<img src='@H/i.png'><img srcset='@H/i2.png 2x'><picture><source srcset='@H/p'><img></picture>"},
            {"remote background", "<p style=\"background: url(@H/b.png)\">x</p>"},
            {"image in the home folder", "<img src='@F/secret.png'>"},
            {"image by way of the report's folder",
             "<img src='file://@I/../../../../../../../../../../@P/secret.png'><img "
             "src='file://@I/%2e%2e/secret.png'>"},
            {"image beside the report", "<img src='secret.png'><img src='../secret.png'>"},
            {"vector image", "<svg width=40 height=40><image href='@F/secret.png' width=40 height=40 />"
                             "<use href='@F/secret.svg#a' /></svg>"},
            {"image in the text itself", "<img src='@D'><p style='background:url(@D)'>x</p>"},
            {"style sheet import", "<style>@import url('@H/a.css'); @import url('@F/secret.css');</style>"},
            {"style sheet link",
             "<link rel=stylesheet href='@H/l.css'><link rel=stylesheet href='@F/secret.css'>"},
            {"font", "<style>@font-face {font-family: x; src: url(@H/f.woff)} h1 {font-family: x}</style>"},
            {"links that are looked up early",
             "<link rel=preconnect href='@H'><link rel=dns-prefetch href='@H'><link rel=prefetch href='@H/1'>"
             "<link rel=preload as=image href='@H/2'><link rel=modulepreload href='@H/3'>"
             "<link rel=icon href='@H/4'><link rel=prerender href='@H/5'><link rel=manifest href='@H/6'>"},
            {"frame",
             "<iframe src='@H/f'></iframe><iframe src='@F/secret.html'></iframe>"
             "<iframe srcdoc=\"<img src='@H/g'><script>parent.document.body.innerHTML='SECRET'</script>\">"
             "</iframe>"},
            {"frame of a text file", "<iframe src='@F/secret.txt' width=300 height=80></iframe>"},
            {"refresh", "<meta http-equiv=refresh content='0;url=@F/secret.html'>"},
            {"refresh to a host", "<meta http-equiv=refresh content='0;url=@H/r'>"},
            {"base", "<base href='@H/'><img src='x.png'>"},
            {"form", "<form action='@H/form'><input name=a value=b><button autofocus>x</button></form>"
                     "<script>document.forms[0].submit()</script>"},
            {"form of an image", "<form action='@H/f2'><input type=image src='@H/i'></form>"},
            {"object", "<object data='@H/o'></object><object data='@F/secret.html'></object>"
                       "<embed src='@F/secret.txt'><embed src='@H/e'><applet code='@H/a'></applet>"},
            {"media", "<video src='@H/v' poster='@H/p' autoplay></video><audio src='@H/a' autoplay></audio>"
                      "<video src='@F/secret.png' autoplay></video>"},
            {"policy of its own",
             "<meta http-equiv=Content-Security-Policy content='img-src *'><img src='@H/c'>"},
            {"end of the table", "</td></tr></table></body></html><iframe src='@F/secret.html'></iframe>"},
        };
        for (const auto &row : rows)
            QTest::newRow(row.what) << QString::fromUtf8(row.name);
    }

    void attempts()
    {
        QFETCH(QString, name);
        const QString images =
            QDir::cleanPath(qEnvironmentVariable("VANTRELL_BIN_DIR") + u"/../share/vantrell/report-images"_s);
        QFile secret(m_home.path(u"secret.png"_s));
        QVERIFY(secret.open(QIODevice::ReadOnly));
        const QString data = u"data:image/png;base64,"_s + QString::fromLatin1(secret.readAll().toBase64());
        name.replace(u"@H"_s, u"http://127.0.0.1:%1"_s.arg(m_server.serverPort()))
            .replace(u"@F"_s, u"file://"_s + m_home.path())
            .replace(u"@P"_s, m_home.path())
            .replace(u"@I"_s, images)
            .replace(u"@D"_s, data);
        const auto marker = [](const QString &text) {
            return u"<marker><name>%1</name><in>25</in><out>-1</out></marker>"_s.arg(text.toHtmlEscaped());
        };
        const QString project =
            m_home.addFile(u"project.xml"_s, u"<xmeml><sequence><name>Reel</name>%1%2%3</sequence></xmeml>"_s
                                                 .arg(marker(u"Before"_s), marker(name), marker(u"After"_s))
                                                 .toUtf8());
        const QString pdf = m_home.path(u"out.pdf"_s);
        QFile::remove(pdf);
        m_connections = 0;
        const CliRun run = runCli({u"report"_s, project, u"--tab"_s, u"markers"_s, u"-o"_s, pdf});
        QCOMPARE(run.messages, QByteArray());
        QCOMPARE(run.status, 0);
        QCoreApplication::processEvents();
        QCOMPARE(m_connections, 0);
        const QByteArray text = output(u"pdftotext"_s, {pdf, u"-"_s});
        QVERIFY2(text.contains("Before") && !text.contains("SECRET"), text.constData());
        // The report's own, and what the engine draws instead of one that it did not get.
        const QList<QByteArray> lines =
            output(u"pdfimages"_s, {u"-list"_s, pdf}).trimmed().split('\n').mid(2);
        QVERIFY(!lines.isEmpty());
        const int secretWidth = widthOf(secret.fileName());
        QCOMPARE(secretWidth, 48);
        for (const QByteArray &line : lines)
            QVERIFY2(line.simplified().split(' ').value(3).toInt() != secretWidth, line.constData());
    }

private:
    const TemporaryHome m_home;
    QTcpServer m_server;
    int m_connections = 0;
};

QTEST_GUILESS_MAIN(TestIsolation)
#include "tst_isolation.moc"

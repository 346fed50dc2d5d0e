#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <csignal>

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

QString binFolder()
{
    return qEnvironmentVariable("VANTRELL_BIN_DIR");
}

const QString helper = u"vantrell-print-pdf"_s;

} // namespace

/// The PDF files of reports, read back page by page.
class TestPages : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    /// A report of that many markers, "Marker 001" and so on, each with a comment of a few lines.
    QString report(int rows, const QString &columns)
    {
        QString text = u"<xmeml><sequence><name>Reel 1</name><rate><timebase>25</timebase></rate>"_s;
        for (int i = 1; i <= rows; ++i)
            text += u"<marker><name>Marker %1</name><comment>%2</comment><in>%3</in><out>-1</out></marker>"_s
                        .arg(i, 3, 10, QLatin1Char('0'))
                        .arg(u"look at this "_s.repeated(i % 5 * 4))
                        .arg(i * 25);
        const QString project =
            m_home.addFile(u"Night Shift.xml"_s, (text + u"</sequence></xmeml>"_s).toUtf8());
        const QString html = m_home.path(u"report.html"_s);
        return runCli(
                   {u"report"_s, project, u"--tab"_s, u"markers"_s, u"--columns"_s, columns, u"-o"_s, html})
                           .status == 0
                   ? html
                   : QString();
    }

    QStringList arguments(const QString &html, const QString &pdf) const
    {
        return {u"--html"_s,   html,
                u"--images"_s, QDir::cleanPath(binFolder() + u"/../share/vantrell/report-images"_s),
                u"-o"_s,       pdf};
    }

private Q_SLOTS:
    void pages_data()
    {
        QTest::addColumn<QString>("columns");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("size"); // points
        const QString three = u"name,comment,in"_s;
        const QString twelve =
            u"name,comment,in,out,sequence,clip,chapter,compression,scoring,QVCUSTOM_A,QVCUSTOM_B,QVCUSTOM_C"_s;
        const QStringList upright{u"--paper"_s, u"A4"_s};
        const QStringList wide{u"--paper"_s, u"A4"_s, u"--landscape"_s};
        QTest::newRow("3 columns, portrait") << three << upright << QByteArray("594.96 x 841.92");
        QTest::newRow("3 columns, landscape") << three << wide << QByteArray("841.92 x 594.96");
        QTest::newRow("12 columns, portrait") << twelve << upright << QByteArray("594.96 x 841.92");
        QTest::newRow("12 columns, landscape") << twelve << wide << QByteArray("841.92 x 594.96");
        QTest::newRow("Letter, wide margins")
            << three << QStringList{u"--paper"_s, u"Letter"_s, u"--margin"_s, u"40"_s}
            << QByteArray("612 x 792");
    }

    /// Each row is whole on one page, under the table's head; pages are numbered; no column is cut off.
    void pages()
    {
        QFETCH(QString, columns);
        QFETCH(QStringList, options);
        QFETCH(QByteArray, size);
        constexpr int rows = 120;
        const QString html = report(rows, columns);
        const QString pdf = m_home.path(u"out.pdf"_s);
        QProcess process;
        process.start(binFolder() + u'/' + helper, arguments(html, pdf) + options);
        QVERIFY(process.waitForFinished(40000));
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardOutput(), QByteArray());
        const QByteArray facts = output(u"pdfinfo"_s, {pdf});
        QVERIFY2(facts.contains(size) && facts.contains("Night Shift"), facts.constData());
        const int count = facts.mid(facts.indexOf("Pages:") + 6).simplified().split(' ').value(0).toInt();
        QVERIFY(count > 1);
        int row = 0;
        int comments = 0;
        for (int page = 1; page <= count; ++page) {
            const QString number = QString::number(page);
            const QString text = QString::fromUtf8(
                output(u"pdftotext"_s, {u"-layout"_s, u"-f"_s, number, u"-l"_s, number, pdf, u"-"_s}));
            QVERIFY2(text.contains(u"Comment"_s), qPrintable(text));
            QVERIFY(QString(text).remove(u' ').contains(u"%1/%2"_s.arg(page).arg(count)));
            QCOMPARE(text.contains(u"Night Shift"_s), page == 1);
            for (const QString &title : columns.contains(u"QVCUSTOM_C"_s)
                                            ? QStringList{u"Scoring"_s, u"QVCUSTOM_C"_s}
                                            : QStringList{u"In"_s})
                QVERIFY2(text.contains(title), qPrintable(title));
            // A split row would leave words of its comment above the first name of the next page.
            const QStringList words = text.simplified().split(u' ');
            int pageComments = 0;
            for (const QString &word : words)
                pageComments += word == u"look"_s;
            int wanted = 0;
            while (row < rows && words.contains(u"%1"_s.arg(row + 1, 3, 10, QLatin1Char('0')))) {
                ++row;
                wanted += row % 5 * 4;
            }
            QCOMPARE(pageComments, wanted);
            comments += pageComments;
        }
        QCOMPARE(row, rows);
        QCOMPARE(comments, rows / 5 * (1 + 2 + 3 + 4) * 4);
    }

    /// A word that is wider than the page is broken rather than cut off.
    void longWord()
    {
        const QString word = u"wxyz"_s.repeated(200);
        const QString html =
            m_home.addFile(u"word.html"_s, u"<table><thead><th>A</th><th>B</th></thead><tr><td>%1</td>"
                                           "<td>last</td></tr></table>"_s.arg(word)
                                               .toUtf8());
        const QString pdf = m_home.path(u"word.pdf"_s);
        QCOMPARE(QProcess::execute(binFolder() + u'/' + helper, arguments(html, pdf)), 0);
        QByteArray text = output(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
        QVERIFY(text.contains("last"));
        QCOMPARE(text.count("w"), 200);
    }

    void refuses()
    {
        const QString pdf = m_home.path(u"no.pdf"_s);
        const QString html = m_home.addFile(u"a.html"_s, "<p>a</p>");
        const struct {
            QStringList arguments;
            int status;
        } rows[] = {
            {{}, 2},
            {{u"--html"_s, html}, 2},
            {arguments(html, pdf) + QStringList{u"more"_s}, 2},
            {arguments(html, pdf) + QStringList{u"--paper"_s, u"B12"_s}, 2},
            {arguments(html, pdf) + QStringList{u"--margin"_s, u"wide"_s}, 2},
            {arguments(m_home.path(u"missing.html"_s), pdf), 1},
            {arguments(html, m_home.path(u"missing/no.pdf"_s)), 1},
        };
        for (const auto &row : rows) {
            QProcess process;
            process.start(binFolder() + u'/' + helper, row.arguments);
            QVERIFY(process.waitForFinished(40000));
            QVERIFY2(process.exitCode() == row.status, qPrintable(row.arguments.join(u' ')));
            QVERIFY(process.readAllStandardOutput().isEmpty() && !process.readAllStandardError().isEmpty());
        }
        QVERIFY(!QFile::exists(pdf));
    }
};

QTEST_GUILESS_MAIN(TestPages)
#include "tst_pages.moc"

#include "handover/FileNames.h"

#include <QTest>

using namespace vantrell;

class FileNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches()
    {
        using enum NameMatch;
        const struct {
            const char *wanted;
            const char *found;
            NameMatch match;
        } table[] = {
            {"a.mov", "a.mov", Same},
            {"a.mov", "a.mov ", None},
            {"\xC3\xA9.mov", "e\xCC\x81.mov", UnicodeForm},
            {"A.mov", "a.MOV", Case},
            {"\xC3\x89.mov", "e\xCC\x81.mov", Case},
            {"a b.mov", "a%20b.mov", Escapes},
            {"a%20B.mov", "a b.mov", Escapes},
            {"e\xCC\x81.mov", "%C3%89.mov", Escapes},
            {"50%.mov", "50%.mov", Same},
            {"a.mov", "b.mov", None},
        };
        for (const auto &row : table) {
            const QString wanted = QString::fromUtf8(row.wanted);
            const QString found = QString::fromUtf8(row.found);
            QVERIFY2(FileNames::match(wanted, found) == row.match, row.found);
            QCOMPARE(FileNames::relaxed(wanted) == FileNames::relaxed(found), row.match != None);
        }
    }

    void references()
    {
        const std::pair<const char *, const char *> table[] = {
            {"file://localhost/V/a%20b.mov", "/V/a b.mov"},
            {"file://localhost/V/a b%20c.mov", "/V/a b c.mov"},
            {"C:\\Media\\a b.mov", "C:/Media/a b.mov"},
            {"V/a b.mov", "V/a b.mov"},
        };
        for (const auto &[url, path] : table)
            QCOMPARE(FileNames::pathOfReference(QString::fromUtf8(url)), QString::fromUtf8(path));
    }

    void urls()
    {
        const QString path = QString::fromUtf8("/m/a #%\xC3\xA9.mov");
        QCOMPARE(FileNames::urlOfPath(path, QStringLiteral("file:///x")),
                 QStringLiteral("file:///m/a%20%23%25%C3%A9.mov"));
        QCOMPARE(FileNames::urlOfPath(path, QStringLiteral("x.mov")),
                 QStringLiteral("file://localhost/m/a%20%23%25%C3%A9.mov"));
        QCOMPARE(FileNames::pathOfReference(FileNames::urlOfPath(path, QString())), path);
    }
};

QTEST_GUILESS_MAIN(FileNamesTest)
#include "tst_filenames.moc"

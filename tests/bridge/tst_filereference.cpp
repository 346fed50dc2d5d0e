#include "bridge/FileReference.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <sys/time.h>

using namespace vantrell;

class FileReferenceTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;

    QString longPath(const QString &name = QStringLiteral("x.fcp")) const
    {
        return m_home->path(QStringLiteral("Projects/") + QString(120, u'd') + QLatin1Char('/') + name);
    }
    QString addLong(const QString &name = QStringLiteral("x.fcp")) const
    {
        return m_home->addFile(QDir(m_home->path()).relativeFilePath(longPath(name)), "p");
    }
    QDir registry() const { return QDir(m_home->path(QStringLiteral("run/vantrell/references"))); }
    QStringList entries() const { return registry().entryList(QDir::Files | QDir::Hidden); }

private Q_SLOTS:
    void init() { m_home = std::make_unique<TemporaryHome>(); }
    void cleanup() { m_home.reset(); }

    void thereAndBack_data()
    {
        QTest::addColumn<QString>("relative");
        QTest::newRow("short") << QStringLiteral("a b.fcp");
        QTest::newRow("letters") << QStringLiteral("Café \U0001F3AC.fcp");
        QTest::newRow("long") << QString(200, u'x');
        QTest::newRow("very long") << QStringList(15, QString(250, u'y')).join(QLatin1Char('/'));
    }
    void thereAndBack()
    {
        QFETCH(QString, relative);
        const QString path = m_home->addFile(relative, "p");
        const auto reference = fileReferenceForPath(path);
        QVERIFY(reference);
        QCOMPARE(reference->size(), 80);
        QCOMPARE(pathForFileReference(*reference), std::optional(path));
        QCOMPARE(entries().size(), path.toUtf8().size() <= 54 ? 0 : 1);
    }

    void noSuchFile()
    {
        QVERIFY(!fileReferenceForPath({}));
        QVERIFY(!fileReferenceForPath(m_home->path(QStringLiteral("absent"))));
        QVERIFY(!fileReferenceForPath(m_home->path())); // a folder
        const QString nul = m_home->addFile(QStringLiteral("a"), "p") + QChar(u'\0') + QLatin1Char('b');
        QVERIFY(!fileReferenceForPath(nul));
    }

    void relativePathAndLink()
    {
        const QString path = m_home->addFile(QStringLiteral("folder/p.fcp"), "p");
        QVERIFY(QFile::link(path, m_home->path(QStringLiteral("link"))));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_home->path()));
        const auto reference = fileReferenceForPath(QStringLiteral("link"));
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(reference);
        QCOMPARE(pathForFileReference(*reference), std::optional(m_home->path(QStringLiteral("link"))));
    }

    void fileThatChangedItsPlace()
    {
        for (const QString &path : {m_home->addFile(QStringLiteral("p"), "p"), addLong()}) {
            const auto reference = fileReferenceForPath(path);
            QVERIFY(reference);
            QVERIFY(QFile::rename(path, path + QLatin1Char('2')));
            QVERIFY(!pathForFileReference(*reference));
            QFile other(path);
            QVERIFY(other.open(QIODevice::WriteOnly));
            QVERIFY(!pathForFileReference(*reference)); // another file of that name
            QCOMPARE(pathInFileReference(*reference), std::optional(path));
            QVERIFY(other.remove());
            QVERIFY(QFile::rename(path + QLatin1Char('2'), path));
            QVERIFY(pathForFileReference(*reference));
            QVERIFY(QFile::remove(path));
            QVERIFY(!pathForFileReference(*reference));
        }
    }

    void foreignBytes()
    {
        for (const QString &path : {m_home->addFile(QStringLiteral("p"), "p"), addLong()}) {
            const QByteArray reference = fileReferenceForPath(path).value();
            QVERIFY(!pathForFileReference(reference.first(79)));
            QVERIFY(!pathForFileReference(reference + '\0'));
            // Any bit of magic, user, device, number and length; the path's last bytes are padding.
            for (int i = 0; i < 26; ++i) {
                QByteArray changed = reference;
                changed[i] = char(changed[i] ^ 1);
                QVERIFY2(!pathForFileReference(changed), qPrintable(QString::number(i)));
                const bool isOfTheFile = i >= 8 && i < 24; // which may be another one by now
                QVERIFY2(isOfTheFile || pathInFileReference(changed) != path, qPrintable(QString::number(i)));
            }
        }
        QVERIFY(!pathForFileReference(QByteArray(80, '\0')));
        QVERIFY(!pathForFileReference(QByteArray(80, '\xff')));
    }

    void keptPathsAreTheUsersAlone()
    {
        const QByteArray reference = fileReferenceForPath(addLong()).value();
        QCOMPARE(entries().size(), 1);
        const QString entry = registry().filePath(entries().constFirst());
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(entry).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, mode_t(0600));
        QCOMPARE(::stat(QFile::encodeName(registry().path()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, mode_t(0700));

        // What others may write, what is a link, and what holds another path count for nothing.
        QVERIFY(pathForFileReference(reference));
        const QByteArray name = QFile::encodeName(entry);
        QCOMPARE(::chmod(name.constData(), 0622), 0);
        QVERIFY(!pathForFileReference(reference));
        QCOMPARE(::chmod(name.constData(), 0600), 0);
        QVERIFY(pathForFileReference(reference));
        QVERIFY(QFile::rename(entry, entry + QLatin1Char('x')));
        QVERIFY(QFile::link(entry + QLatin1Char('x'), entry));
        QVERIFY(!pathForFileReference(reference));
        QVERIFY(QFile::remove(entry));
        m_home->addFile(QDir(m_home->path()).relativeFilePath(entry), "/etc/passwd");
        QCOMPARE(::chmod(name.constData(), 0600), 0);
        QVERIFY(!pathForFileReference(reference));
        QVERIFY(QFile::remove(entry));
        QVERIFY(!pathForFileReference(reference));
        QVERIFY(pathForFileReference(fileReferenceForPath(longPath()).value()));

        QCOMPARE(::chmod(QFile::encodeName(registry().path()).constData(), 0777), 0);
        QVERIFY(!pathForFileReference(reference));
        QVERIFY(!fileReferenceForPath(longPath()));
    }

    void withoutARuntimeFolder()
    {
        const QString path = addLong();
        const QByteArray reference = fileReferenceForPath(path).value();
        const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
        qunsetenv("XDG_RUNTIME_DIR");
        QVERIFY(!fileReferenceForPath(path));
        QVERIFY(!pathForFileReference(reference));
        qputenv("XDG_RUNTIME_DIR", folder);
        QVERIFY(pathForFileReference(reference));
    }

    void oldEntriesGo()
    {
        const QByteArray old = fileReferenceForPath(addLong(QStringLiteral("old"))).value();
        const QByteArray used = fileReferenceForPath(addLong(QStringLiteral("used"))).value();
        const timeval yesterday{time(nullptr) - 24 * 60 * 60 - 60, 0};
        const timeval times[2] = {yesterday, yesterday};
        for (const QString &entry : entries())
            QCOMPARE(::utimes(QFile::encodeName(registry().filePath(entry)).constData(), times), 0);
        QVERIFY(pathForFileReference(old));
        QCOMPARE(fileReferenceForPath(longPath(QStringLiteral("used"))), std::optional(used));
        QVERIFY(fileReferenceForPath(addLong(QStringLiteral("new"))));
        QCOMPARE(entries().size(), 2);
        QVERIFY(!pathForFileReference(old));
        QVERIFY(pathForFileReference(used));
    }
};

QTEST_GUILESS_MAIN(FileReferenceTest)
#include "tst_filereference.moc"

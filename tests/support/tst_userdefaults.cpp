#include "CapturedStandardError.h"
#include "TemporaryHome.h"

#include "support/files/PropertyList.h"
#include "support/files/StandardFolders.h"
#include "support/settings/UserDefaults.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <thread>
#include <vector>

using namespace vantrell;

namespace
{

const QString name = QStringLiteral(".config/com.orvandel.vantrell.plist");
const QString a = QStringLiteral("a");
const QString b = QStringLiteral("b");

QVariantMap storedIn(const QString &path)
{
    const Result<QVariant> list = PropertyList::fromFile(path);
    return list ? list.value().toMap() : QVariantMap();
}

/// The keys that the signals named, sorted.
QStringList keysOf(QSignalSpy &spy)
{
    QStringList keys;
    while (!spy.isEmpty())
        keys.append(spy.takeFirst().value(0).toString());
    keys.sort();
    return keys;
}

} // namespace

class TestUserDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setValuesShadowRegisteredOnes()
    {
        const TemporaryHome home;
        UserDefaults defaults((QString()));
        defaults.registerDefaults({{a, 1}, {b, QStringLiteral("registered")}});
        QCOMPARE(defaults.integer(a), 1);
        QVERIFY(!QFileInfo::exists(home.path(name)));

        defaults.setValue(a, 7);
        defaults.setValue(b, QStringLiteral("set & <stored>"));
        QCOMPARE(storedIn(home.path(name)).keys(), QStringList({a, b}));
        const UserDefaults second((QString()));
        QCOMPARE(second.integer(a), 7);
        QCOMPARE(second.string(a), QStringLiteral("7"));
        QVERIFY(second.boolean(a));
        QCOMPARE(second.string(b), QStringLiteral("set & <stored>"));

        defaults.removeValue(b);
        defaults.setValue(a, QVariant());
        QCOMPARE(defaults.string(b), QStringLiteral("registered"));
        QCOMPARE(defaults.integer(a), 1);
        QVERIFY(storedIn(home.path(name)).isEmpty());
        QVERIFY(defaults.value(QStringLiteral("unknown")).isNull());
        QVERIFY(defaults.string(QStringLiteral("unknown")).isNull());
    }

    void announcesWhatChanged()
    {
        const TemporaryHome home;
        UserDefaults defaults((QString()));
        UserDefaults other((QString()));
        defaults.registerDefaults({{a, 1}});
        QSignalSpy spy(&defaults, &UserDefaults::changed);
        defaults.setValue(a, 1); // now set, with the value that held already
        QCOMPARE(keysOf(spy), QStringList());
        defaults.setValues({{a, 2}, {b, 3}});
        QCOMPARE(keysOf(spy), QStringList({a, b}));
        defaults.setValue(b, 3);
        QCOMPARE(keysOf(spy), QStringList());
        defaults.removeValue(a);
        QCOMPARE(keysOf(spy), QStringList(a));

        // What others change shows at the next use of the file, and by itself in an event loop.
        other.setValue(b, 4);
        defaults.setValue(a, 1);
        QCOMPARE(keysOf(spy), QStringList(b));
        QCOMPARE(storedIn(home.path(name)).value(b).toLongLong(), 4);
        for (int value = 5; value < 8; ++value) {
            other.setValue(b, value);
            QTRY_COMPARE(defaults.integer(b), value);
            QCOMPARE(keysOf(spy), QStringList(b));
        }
    }

    void keepsADamagedFileAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("cut") << QByteArray("<plist><dict><key>a</key><integer>1");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no dictionary") << QByteArray("<plist><array/></plist>");
    }

    void keepsADamagedFileAside()
    {
        QFETCH(QByteArray, content);
        const TemporaryHome home;
        const CapturedStandardError console; // the log has no file here
        const QString path = home.addFile(name, content);
        {
            UserDefaults reader(QString(), UserDefaults::Access::ReadOnly);
            QVERIFY(reader.value(a).isNull());
            QCOMPARE(contentOf(path), content);
        }
        UserDefaults defaults((QString()));
        defaults.registerDefaults({{a, 2}});
        QCOMPARE(defaults.integer(a), 2);
        QCOMPARE(contentOf(path + QStringLiteral(".damaged")), content);
        QVERIFY(!QFileInfo::exists(path));

        // The same when it is found while writing.
        home.addFile(name, content);
        defaults.setValue(b, 3);
        QCOMPARE(storedIn(path).keys(), QStringList(b));
    }

    void worksWhereNothingCanBeWritten()
    {
        const TemporaryHome home;
        const CapturedStandardError console;
        const QString blocked = home.addFile(QStringLiteral("blocked"), "a file where the folder should be");
        UserDefaults defaults(blocked + QStringLiteral("/settings.plist"));
        defaults.setValue(a, 5);
        defaults.setValue(a, 6);
        QCOMPARE(defaults.integer(a), 6);
        QVERIFY(QFile::remove(blocked));
        defaults.synchronize();
        QCOMPARE(storedIn(blocked + QStringLiteral("/settings.plist")).value(a).toLongLong(), 6);

        // What is there and cannot be read is not written over.
        const QString folder = home.path(QStringLiteral("folder.plist"));
        QVERIFY(QDir().mkpath(folder));
        UserDefaults unreadable(folder);
        unreadable.setValue(a, 1);
        QCOMPARE(unreadable.integer(a), 1);
        QVERIFY(QFileInfo(folder).isDir());
    }

    void accessIsKept()
    {
        const TemporaryHome home;
        UserDefaults shared((QString()));
        shared.setValue(a, 1);
        const QByteArray before = contentOf(home.path(name));
        UserDefaults reader(QString(), UserDefaults::Access::ReadOnly);
        UserDefaults alone(QString(), UserDefaults::Access::Volatile);
        QCOMPARE(reader.integer(a), 1);
        QVERIFY(alone.value(a).isNull());
        for (UserDefaults *defaults : {&reader, &alone}) {
            defaults->setValue(a, 9);
            defaults->synchronize();
            QCOMPARE(defaults->integer(a), 9);
        }
        QCOMPARE(contentOf(home.path(name)), before);
        QSignalSpy spy(&alone, &UserDefaults::changed);
        alone.setAccess(UserDefaults::Access::Shared);
        QCOMPARE(alone.integer(a), 1);
        QCOMPARE(keysOf(spy), QStringList(a));

        UserDefaults::setStandardAccess(UserDefaults::Access::Volatile);
        QVERIFY(UserDefaults::standard().value(a).isNull());
        UserDefaults::setStandardAccess(UserDefaults::Access::Shared);
        QCOMPARE(UserDefaults::standard().integer(a), 1);
    }

    void threadsShareOneObject()
    {
        const TemporaryHome home;
        UserDefaults defaults((QString()));
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([&defaults, thread] {
                for (int i = 0; i < 10; ++i) {
                    defaults.setValue(QStringLiteral("%1.%2").arg(thread).arg(i), i);
                    defaults.integer(QStringLiteral("0.0"));
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(storedIn(home.path(name)).size(), 40);
    }

    void processesKeepEachOthersKeys()
    {
        const TemporaryHome home;
        std::vector<std::unique_ptr<QProcess>> processes;
        for (int i = 0; i < 3; ++i) {
            processes.push_back(std::make_unique<QProcess>());
            processes.back()->start(QCoreApplication::applicationFilePath(),
                                    {QStringLiteral("write"), QString::number(i)});
        }
        for (const std::unique_ptr<QProcess> &process : processes) {
            QVERIFY(process->waitForFinished(120'000));
            QCOMPARE(process->exitCode(), 0);
        }
        const QVariantMap stored = storedIn(home.path(name));
        QCOMPARE(stored.size(), 60);
        QCOMPARE(stored.value(QStringLiteral("2.19")).toLongLong(), 19);
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "write") {
        for (int i = 0; i < 20; ++i)
            UserDefaults::standard().setValue(QStringLiteral("%1.%2").arg(QString::fromUtf8(argv[2])).arg(i),
                                              i);
        return 0;
    }
    TestUserDefaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_userdefaults.moc"

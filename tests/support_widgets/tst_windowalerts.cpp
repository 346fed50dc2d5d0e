#include "support/alerts/QVAlert.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/AlertBox.h"
#include "support/widgets/NestedEvents.h"
#include "support/widgets/WindowAlertPresenter.h"
#include "tests/support/TemporaryHome.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>

using namespace vantrell;

namespace
{

QList<QMessageBox *> boxesOnShow()
{
    QList<QMessageBox *> boxes;
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        auto *const box = qobject_cast<QMessageBox *>(widget);
        if (box && box->isVisible())
            boxes.append(box);
    }
    return boxes;
}

void press(QMessageBox *box, const QString &title)
{
    for (QAbstractButton *const button : box->buttons()) {
        if (button->text().remove(QLatin1Char('&')) == title)
            button->click();
    }
}

/// Does something with the next box that shows up.
void whenShown(const std::function<void(QMessageBox *)> &action)
{
    auto *const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action] {
        if (boxesOnShow().isEmpty())
            return;
        timer->stop();
        timer->deleteLater();
        action(boxesOnShow().constLast());
    });
    timer->start(5);
}

} // namespace

class TestWindowAlerts : public QObject
{
    Q_OBJECT

public:
    /// A screen of usual size: a box wraps its message by it.
    static void initMain()
    {
        static QTemporaryFile screens;
        if (!screens.open())
            qFatal("No temporary file can be had.");
        screens.write(R"({"screens": [{"name": "Screen", "x": 0, "y": 0, "width": 1920, "height": 1080,
                          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        screens.close();
        if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
            qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screens.fileName()));
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_defaults = std::make_unique<UserDefaults>(m_home.path(QStringLiteral("test.plist")));
        QVAlert::setPresenter(std::make_shared<WindowAlertPresenter>(*m_defaults));
    }
    void cleanupTestCase() { QVAlert::setPresenter(nullptr); }
    void cleanup()
    {
        QVAlert::closeAll();
        QVERIFY(boxesOnShow().isEmpty());
    }

    void answersWithTheButtonPressed_data()
    {
        QTest::addColumn<QString>("pressed"); // empty: the Escape key
        QTest::addColumn<QString>("other");
        QTest::addColumn<int>("code");
        QTest::newRow("default") << "Yes"
                                 << "Later" << 1;
        QTest::newRow("alternate") << "No"
                                   << "Later" << 0;
        QTest::newRow("other") << "Later"
                               << "Later" << -1;
        QTest::newRow("Escape is the alternate") << ""
                                                 << "Later" << 0;
        QTest::newRow("Escape is Cancel where there is one") << ""
                                                             << "Cancel" << -1;
    }
    void answersWithTheButtonPressed()
    {
        QFETCH(QString, pressed);
        QFETCH(QString, other);
        whenShown([&](QMessageBox *box) {
            if (pressed.isEmpty())
                QTest::keyClick(box, Qt::Key_Escape);
            else
                press(box, pressed);
        });
        const int code = QVAlert::alertSheetWithMessageText(QStringLiteral("Proceed?"), QStringLiteral("Yes"),
                                                            QStringLiteral("No"), other,
                                                            QStringLiteral("It is late."), nullptr, true);
        QTEST(code, "code");
    }

    void cancelAsTheDefaultTakesReturnAndEscape()
    {
        for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
            whenShown([key](QMessageBox *box) { QTest::keyClick(box, key); });
            QCOMPARE(QVAlert::alertSheetWithMessageText(
                         QStringLiteral("Overwrite?"), QStringLiteral("Cancel"), QStringLiteral("Overwrite"),
                         QString(), QStringLiteral("It is lost."), nullptr, true),
                     1);
        }
        whenShown([](QMessageBox *box) { press(box, QStringLiteral("Overwrite")); });
        QCOMPARE(QVAlert::alertSheetWithMessageText(QStringLiteral("Overwrite?"), QStringLiteral("Cancel"),
                                                    QStringLiteral("Overwrite"), QString(), QString(),
                                                    nullptr, true),
                 0);
    }

    void answersAWorkerThatWaits_data()
    {
        QTest::addColumn<bool>("closesWindow");
        QTest::addColumn<int>("code");
        QTest::newRow("button") << false << 1;
        QTest::newRow("window closes") << true << -1;
    }
    void answersAWorkerThatWaits()
    {
        QFETCH(bool, closesWindow);
        auto window = std::make_unique<QWidget>();
        window->show();
        WindowAlertParent parent(window.get());
        std::atomic<int> code = 7;
        std::thread worker(
            [&] { code = QVAlert::alertSheetWithMessageText(QStringLiteral("Done"), QString(), &parent); });
        QTRY_COMPARE(boxesOnShow().size(), 1);
        if (closesWindow) {
            QVAlert::closeAlertsForParent(&parent);
            window.reset();
        } else {
            boxesOnShow().constFirst()->defaultButton()->click();
        }
        QTRY_VERIFY(code != 7);
        worker.join();
        QTEST(int(code), "code");
    }

    void textsShowAsTheyStand()
    {
        QStringList labels;
        whenShown([&](QMessageBox *box) {
            for (const QLabel *const label : box->findChildren<QLabel *>()) {
                if (!label->text().isEmpty() && label->textFormat() == Qt::PlainText)
                    labels.append(label->text());
            }
            box->defaultButton()->click();
        });
        QVAlert::alertSheetWithMessageText(QStringLiteral("<b>50 %@</b>"), QStringLiteral("a < b & %i"),
                                           nullptr);
        QVERIFY(labels.contains(QStringLiteral("<b>50 %@</b>")));
        QVERIFY(labels.contains(QStringLiteral("a < b & %i")));
    }

    void alertsAreWideAndKeepPathsWhole_data()
    {
        QTest::addColumn<QString>("path");
        const QString end = QStringLiteral("/last.mov");
        QTest::newRow("long name") << QStringLiteral("/Volumes/") + QString(200, QLatin1Char('x')) + end;
        QTest::newRow("blanks") << QStringLiteral("/Volumes/") +
                                       QStringLiteral("Reel 3 Final/").repeated(20) +
                                       QStringLiteral("Take 2") + end;
    }
    void alertsAreWideAndKeepPathsWhole()
    {
        QFETCH(QString, path);
        bool isBold = false;
        int width = 0;
        QString shown;
        QString tip;
        QString all;
        QString part;
        QString whole;
        whenShown([&](QMessageBox *box) {
            width = box->width();
            QLabel *elided = nullptr;
            for (QLabel *const label : box->findChildren<QLabel *>()) {
                if (label->text() == QStringLiteral("Short"))
                    isBold = label->font().bold();
                if (!label->toolTip().isEmpty()) {
                    shown = label->text();
                    tip = label->toolTip();
                    elided = label;
                }
            }
            QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
            all = QGuiApplication::clipboard()->text();
            if (elided) {
                const auto copied = [elided](int first, int length) {
                    elided->setSelection(first, length);
                    QTest::keyClick(elided, Qt::Key_C, Qt::ControlModifier);
                    return QGuiApplication::clipboard()->text();
                };
                part = copied(0, 10);
                whole = copied(0, int(elided->text().size()));
            }
            box->defaultButton()->click();
        });
        QVAlert::alertSheetWithMessageText(QStringLiteral("Short"), path, nullptr);
        QVERIFY(isBold);
        QVERIFY2(width >= 380 && width < 640, qPrintable(QString::number(width)));
        QVERIFY(shown.startsWith(QStringLiteral("/\u2060Volumes")));
        QVERIFY(shown.endsWith(QStringLiteral("last.mov")));
        QVERIFY(shown.size() < path.size());
        QVERIFY(!shown.contains(QLatin1Char(' '))); // where a line could be broken
        QVERIFY(tip.contains(path));
        QCOMPARE(all, QStringLiteral("Short\n") + path);
        QCOMPARE(part, QStringLiteral("/Volumes/"));
        QCOMPARE(whole, path); // although it is elided
    }

    void pathsInSentencesStayWhole()
    {
        const auto shown = [](const QString &text) {
            QLabel label;
            setTextWithPaths(label, text, 400);
            return label.text().remove(QChar(0x2060)).replace(QChar::Nbsp, QLatin1Char('_'));
        };
        QCOMPARE(shown(QStringLiteral("\"/a b/c d\" is in use, and/or gone.")),
                 QStringLiteral("\"/a_b/c_d\" is in use, and/or gone."));
        QCOMPARE(shown(QStringLiteral("No /a b/c 1.5 d.xml: no such file. See /x y")),
                 QStringLiteral("No /a_b/c_1.5_d.xml: no such file. See /x y"));
        QCOMPARE(shown(QStringLiteral("Save “Reel 3 v1.2 b.xml” of “Part 2”, not now.")),
                 QStringLiteral("Save “Reel_3_v1.2_b.xml” of “Part 2”, not now."));
        QCOMPARE(shown(QStringLiteral("Enregistrer «\u00a0Bobine 3.xml\u00a0» ?")),
                 QStringLiteral("Enregistrer «_Bobine_3.xml_» ?"));
    }

    /// The box itself reckons with letters that are not bold.
    void noTextIsCut()
    {
        const QString message =
            QStringLiteral("Do you want to save the changes made to “Harbour Lights %1 Recut.xml”?");
        QStringList cut;
        for (int length = 0; length < 40; length += 3) {
            whenShown([&cut](QMessageBox *box) {
                for (const QLabel *const label : box->findChildren<QLabel *>()) {
                    const QSize room = label->contentsRect().size();
                    const QRect needed = label->fontMetrics().boundingRect(
                        QRect(0, 0, room.width(), QWIDGETSIZE_MAX), Qt::TextWordWrap, label->text());
                    if (needed.height() > room.height() || needed.width() > room.width())
                        cut.append(label->text());
                }
                press(box, QStringLiteral("Save"));
            });
            QVAlert::alertSheetWithMessageText(
                message.arg(QString(length, QLatin1Char('m'))), QStringLiteral("Save"),
                QStringLiteral("Don’t Save"), QStringLiteral("Cancel"),
                QStringLiteral("Your changes will be lost if you don’t save them."), nullptr, true);
        }
        QCOMPARE(cut, QStringList());
    }

    void aSecondAlertStandsAlone()
    {
        QWidget window;
        window.show();
        WindowAlertParent parent(&window);
        for (int i = 0; i < 2; ++i)
            QVAlert::alertSheetWithMessageText(QString::number(i), {}, {}, {}, {}, &parent, false);
        const QList<QMessageBox *> boxes = boxesOnShow();
        QCOMPARE(boxes.size(), 2);
        QMessageBox *const sheet = window.findChild<QMessageBox *>();
        QVERIFY(sheet && sheet->text() == QStringLiteral("0"));
        QCOMPARE(sheet->windowModality(), Qt::WindowModal);
        QVERIFY(std::any_of(boxes.begin(), boxes.end(), [](QMessageBox *box) {
            return box->text() == QStringLiteral("1") && !box->parent();
        }));
        QVAlert::closeAlertsForParent(&parent);
        QVERIFY(boxesOnShow().isEmpty());
    }

    void theSuppressionBoxIsBoundToItsKey()
    {
        const QString key = QStringLiteral("doNotWarn");
        m_defaults->setValue(key, true);
        bool wasChecked = false;
        whenShown([&](QMessageBox *box) {
            wasChecked = box->checkBox()->isChecked();
            box->checkBox()->click();
            box->defaultButton()->click();
        });
        QVAlert::alertSheetWithMessageText(QStringLiteral("Careful"), {}, {}, {}, {}, nullptr, nullptr, {},
                                           true, nullptr, key);
        QVERIFY(wasChecked);
        QVERIFY(!m_defaults->boolean(key));
    }

    void aTimedAlertAnswersForTheUser()
    {
        QCOMPARE(QVAlert::timedAlertSheetWithMessageText(QStringLiteral("Soon"), QStringLiteral("Go"),
                                                         QStringLiteral("Stop"), {}, {}, nullptr, 0.2),
                 1);
        QVERIFY(boxesOnShow().isEmpty());
    }

    void workWaitsForTheOperationThatAsks()
    {
        QStringList order;
        whenShown([&](QMessageBox *box) {
            NestedEvents::whenUnwound(this, [&] { order.append(QStringLiteral("work")); });
            QTest::qWait(100);
            order.append(QStringLiteral("answer"));
            box->defaultButton()->click();
        });
        QVAlert::alertSheetWithMessageText(QStringLiteral("Wait"), {}, nullptr);
        order.append(QStringLiteral("returned"));
        QTRY_COMPARE(order.size(), 3);
        QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("answer returned work"));
    }

private:
    TemporaryHome m_home;
    std::unique_ptr<UserDefaults> m_defaults;
};

QTEST_MAIN(TestWindowAlerts)
#include "tst_windowalerts.moc"

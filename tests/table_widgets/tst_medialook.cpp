#include "tests/table_widgets/PaneProject.h"

#include "media/MediaKeys.h"
#include "media/MediaShares.h"
#include "media/widgets/MediaTableModel.h"
#include "media/widgets/QVGraphView.h"
#include "media/widgets/SharesBar.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QTest>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace vantrell
{

/// What the Media tab shows of its files: missing ones, totals, chart and shares.
class TestMediaLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingMediaStandOut()
    {
        PaneProject project;
        QVERIFY(project.load());
        project.show(Tab::Media);
        const TableModel &model = project.media.model();
        int missing = 0;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex name = project.cell(Tab::Media, row, u"filename"_s);
            const bool isMissing = model.recordAt(row)->get(MediaKey::missing);
            missing += int(isMissing);
            QCOMPARE(name.data(Qt::ForegroundRole).isValid(), isMissing);
            const QString tip = name.data(Qt::ToolTipRole).toString();
            QCOMPARE(tip.contains(u"Missing:"_s), isMissing);
            QVERIFY(tip.contains(model.cellText(name)));
            if (isMissing) {
                const QColor ink = name.data(Qt::ForegroundRole).value<QColor>();
                const QColor paper = project.media.table().palette().color(QPalette::Base);
                QVERIFY(std::abs(ink.lightness() - paper.lightness()) > 80);
                QVERIFY(project.cell(Tab::Media, row, u"usageCount"_s)
                            .data(Qt::ToolTipRole)
                            .toString()
                            .contains(u"Missing:"_s));
            }
        }
        QVERIFY(missing > 0 && missing < model.rowCount());
        auto &media = static_cast<MediaTableModel &>(project.media.model());
        const int row = project.rowOf(Tab::Media, u"missing"_s, u"1"_s);
        PathMappings mappings;
        mappings.add(u"/"_s, u"/Volumes/Gone"_s);
        media.setPathMappings(mappings);
        media.setDrives({u"/"_s, u"/Volumes/Here"_s});
        const QString tip = project.cell(Tab::Media, row, u"filename"_s).data(Qt::ToolTipRole).toString();
        QVERIFY2(tip.contains(u"the drive “Gone” is not connected"_s), qPrintable(tip));
        QVERIFY2(tip.contains(u"looked for at /Volumes/Gone/"_s), qPrintable(tip));
    }

    void totalsAreShortened()
    {
        PaneProject project;
        QVERIFY(project.load());
        project.show(Tab::Media);
        TabPane &pane = project.media;
        const auto shown = [&](const QString &start) -> QLabel * {
            for (QLabel *const label : pane.findChildren<QLabel *>()) {
                if (label->text().startsWith(start))
                    return label;
            }
            return nullptr;
        };
        QLabel *const largest = shown(u"Largest file:"_s);
        QVERIFY(largest);
        const int before = pane.minimumSizeHint().width();
        QVERIFY2(before <= 760, qPrintable(QString::number(before)));
        const QString text = u"Largest file: "_s + QString(300, u'x') + u" (1 GB)"_s;
        largest->setText(text);
        QCOMPARE(pane.minimumSizeHint().width(), before);
        QCOMPARE(largest->text(), text);
    }

    void sharesOfMedia()
    {
        const auto file = [](const char16_t *kind, std::int64_t bytes) {
            auto record = std::make_shared<RowRecord>();
            record->set(MediaKey::filetype, QString::fromUtf16(kind));
            if (bytes > 0)
                record->set(MediaKey::filesize, bytes);
            return RowRecordPtr(record);
        };
        const auto kind = [](const RowRecord &row) { return row.get(MediaKey::filetype); };
        using Shares = std::vector<MediaShare>;
        QCOMPARE(mediaShares({}, kind), Shares{});
        QCOMPARE(mediaShares({file(u"a", 100), file(u"b", 600), file(u"a", 100), file(u"c", 0)}, kind),
                 (Shares{{u"b"_s, 600, 1, 0.75}, {u"a"_s, 200, 2, 0.25}, {u"c"_s, 0, 1, 0}}));
        // Without any size, by their number.
        QCOMPARE(mediaShares({file(u"a", 0), file(u"b", 0), file(u"b", 0), file(u"b", 0)}, kind),
                 (Shares{{u"b"_s, 0, 3, 0.75}, {u"a"_s, 0, 1, 0.25}}));
    }

    void barsShowTheShares()
    {
        PaneProject project;
        QVERIFY(project.load());
        project.show(Tab::Media);
        TabPane &pane = project.media;
        const QList<SharesBar *> bars = pane.findChildren<SharesBar *>();
        QCOMPARE(bars.size(), 2);
        QTRY_VERIFY(!bars[0]->shares().empty());
        QVERIFY(bars[0]->accessibleDescription().startsWith(bars[0]->shares().front().name));
        QCOMPARE(
            SharesBar::textOf({.name = u"Images"_s, .figure = u"3 MB"_s, .part = 0.004, .color = Qt::red}),
            u"Images 3 MB (<1 %)"_s);
        SharesBar bar(u"By kind:"_s, nullptr);
        bar.resize(300, bar.sizeHint().height());
        bar.setShares({{u"a"_s, u"1 GB"_s, 0.75, Qt::red}, {u"b"_s, u"300 MB"_s, 0.25, Qt::blue}});
        const int inBar = bar.height() / 4;
        QCOMPARE(bar.shareAt({220, inBar})->name, u"a"_s);
        QCOMPARE(bar.shareAt({230, inBar})->name, u"b"_s);
        QVERIFY(!bar.shareAt({100, bar.height() - 1}));
        const QImage image = bar.grab().toImage();
        const qreal ratio = image.devicePixelRatio();
        QCOMPARE(image.pixelColor(int(100 * ratio), int(inBar * ratio)), QColor(Qt::red));
        QCOMPARE(image.pixelColor(int(260 * ratio), int(inBar * ratio)), QColor(Qt::blue));
    }

    /// Dark pixels between the centre and the right edge of the pie: the edge of the first slice.
    void tinySlicesHaveNoEdge_data()
    {
        QTest::addColumn<std::vector<double>>("values");
        QTest::addColumn<bool>("hasEdge");
        QTest::newRow("two slices") << std::vector<double>{1, 3} << true;
        QTest::newRow("nothing on show") << std::vector<double>{0, 3} << false;
        QTest::newRow("little on show") << std::vector<double>{1, 1e6} << false;
        QTest::newRow("little is free") << std::vector<double>{1e6, 1} << false;
        QTest::newRow("nothing is free") << std::vector<double>{5, 0} << false;
    }
    void tinySlicesHaveNoEdge()
    {
        QFETCH(const std::vector<double>, values);
        QFETCH(const bool, hasEdge);
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QVGraphView view;
        view.setValues(values);
        QPainter painter(&image);
        view.drawRect(painter, QRectF(0, 0, 100, 100));
        painter.end();
        int darkest = 255;
        for (int y = 48; y <= 52; ++y)
            darkest = std::min(darkest, image.pixelColor(75, y).value());
        QCOMPARE(darkest < 100, hasEdge);
        QVERIFY(image.pixelColor(50, 30).saturation() > 100); // filled
    }
};

} // namespace vantrell

QTEST_MAIN(vantrell::TestMediaLook)
#include "tst_medialook.moc"

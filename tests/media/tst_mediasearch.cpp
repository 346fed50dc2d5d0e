#include "media/MediaSearch.h"
#include "support/log/QVLog.h"
#include "tests/media/MediaProject.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

using namespace vantrell;

namespace
{

RowRecordPtr file(const char *kind, const char *path, bool isMissing)
{
    const auto record = std::make_shared<RowRecord>();
    const QString text = QString::fromUtf8(path);
    record->set(MediaKey::filename, text.section(QLatin1Char('/'), -1));
    record->set(MediaKey::directory, text.section(QLatin1Char('/'), 0, -2));
    record->set(MediaKey::rawpath, QStringLiteral("file://localhost") + text);
    record->set(MediaKey::filetype, QString::fromUtf8(kind));
    if (isMissing)
        record->set(MediaKey::missing, true);
    else
        record->set(MediaKey::filesize, 100);
    return record;
}

struct SearchedMedia : MediaProject {
    SearchedMedia()
    {
        document.rowView(Tab::Media)
            .setList({file("Movie Clip", "/Reel 1/horn.mov", false),
                      file("Audio Clip", "/Reel 1/gull.wav", true), file("Unknown", "/Horn/take.xyz", false),
                      file("Movie Clip", "/Reel 2/quay.mov", true)});
    }
    QString shown() const
    {
        QStringList names;
        for (const RowRecordPtr &row : document.rowsOnShow(Tab::Media))
            names.append(row->get(MediaKey::filename).section(QLatin1Char('.'), 0, 0));
        return names.join(QLatin1Char(' '));
    }

    std::shared_ptr<MediaUseIndex> uses = std::make_shared<MediaUseIndex>();
    MediaSearch search{document, filter, uses};
};

} // namespace

class MediaSearchTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    void narrowsFurther()
    {
        using State = MediaSearch::State;
        struct Case {
            const char *text;
            State state;
            int kind; // of the menu
            const char *names;
        };
        const Case table[] = {
            {"", State::Any, 0, "horn gull take quay"},
            {"HORN", State::Any, 0, "horn take"}, // in the name, in the folder
            {"1/G", State::Any, 0, "gull"},
            {"reel", State::Any, 1, "horn quay"},
            {"", State::Missing, 0, "gull quay"},
            {"reel 2", State::Missing, 0, "quay"},
            {"", State::Missing, 2, "gull"},
            {"", State::UnknownKind, 0, "take"},
            {"", State::UnknownKind, 1, ""},
        };
        SearchedMedia media;
        for (const Case &row : table) {
            media.document.viewState().mediaKind = row.kind;
            media.filter.changeMediaFilter();
            media.search.setConditions({.text = QString::fromUtf8(row.text), .state = row.state});
            QCOMPARE(media.shown(), QString::fromUtf8(row.names));
        }
        QCOMPARE(media.label(Label::MediaFilteredTotalFiles),
                 QStringLiteral("Number of filtered media files: 0"));
        QCOMPARE(media.label(Label::MediaTotalFiles), QStringLiteral("Total number of files: 4"));
    }

    void knowsWhatIsUnusedOnceItWasRead()
    {
        SearchedMedia media;
        media.search.setConditions({.state = MediaSearch::State::Unused});
        QCOMPARE(media.shown(), QString());
        const RowList &files = media.document.mediaArray();
        MediaUseTable table;
        for (std::size_t i = 0; i < 3; ++i)
            table[files[i]->get(MediaKey::rawpath)].uses = i == 1 ? 2 : 0;
        media.uses->set(table);
        media.filter.populateFilteredMediaData();
        QCOMPARE(media.shown(), QStringLiteral("horn take"));
    }

    void followsTheList()
    {
        SearchedMedia media;
        QVERIFY(media.search.prepare(std::chrono::hours(1)));
        media.search.setConditions({.text = QStringLiteral("quay")});
        QCOMPARE(media.shown(), QStringLiteral("quay"));
        media.document.rowView(Tab::Media)
            .setList({file("Image", "/quay.png", true), file("Image", "/q.png", true)});
        media.search.setConditions({.text = QStringLiteral("quay.")});
        QCOMPARE(media.shown(), QStringLiteral("quay"));
        media.search.setConditions({});
        QCOMPARE(media.shown(), QStringLiteral("quay q"));
    }
};

QTEST_GUILESS_MAIN(MediaSearchTest)
#include "tst_mediasearch.moc"

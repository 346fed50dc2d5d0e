#include "media/MediaLook.h"

#include "media/MediaFacts.h"
#include "media/MediaFile.h"
#include "media/MediaInventory.h"
#include "media/MediaKeys.h"
#include "support/text/TextFormat.h"
#include "support/threads/BackgroundWork.h"

#include <QFile>

namespace vantrell
{

MediaLook::MediaLook(MyDocument &document, MediaInventory &inventory, MediaFilter &filter)
    : m_document(document)
    , m_inventory(inventory)
    , m_filter(filter)
{
    m_document.setRowFollower(Tab::Media, {[this](const MyDocument::RestoredRows &) { begin(); }, {}});
}

MediaLook::~MediaLook()
{
    m_document.setRowFollower(Tab::Media, {});
}

void MediaLook::begin(const std::function<void()> &done)
{
    const RowList records = m_document.mediaArray();
    const QStringList places = m_inventory.placesOf(records);
    std::vector<QByteArray> paths;
    paths.reserve(records.size());
    QStringList urls;
    for (std::size_t i = 0; i < records.size(); ++i) {
        paths.push_back(QFile::encodeName(places[qsizetype(i)]));
        urls.append(records[i]->get(MediaKey::rawpath));
    }
    m_look = std::make_shared<int>();
    const auto checks = std::make_shared<FileChecks>(std::move(paths));
    const auto answered = [this, records, urls, done,
                           look = std::weak_ptr(m_look)](const FileChecks::Answers &answers) {
        if (look.expired())
            return;
        update(records, urls, answers);
        if (done)
            done();
    };
    BackgroundWork::run([checks, answered, gate = m_document.mainThread()] {
        const auto answers = checks->answers([&gate] { return gate->isClosed(); }, MediaInventory::patience);
        if (answers)
            gate->post([answered, answers = *answers] { answered(answers); });
    });
}

/// The records that still have the URLs of the look.
void MediaLook::update(const RowList &records, const QStringList &urls, const FileChecks::Answers &answers)
{
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (records[i]->get(MediaKey::rawpath) == urls[qsizetype(i)])
            setFileFacts(*records[i], answers[i]);
    }
    std::uint64_t total = 0;
    for (const RowRecordPtr &record : m_document.mediaArray())
        total += std::uint64_t(record->get(MediaKey::filesize));
    m_document.setLabel(Label::MediaTotalSize,
                        formatText(u"Total size: %@", MediaFile::formatFileSize(double(total))));
    if (m_document.isSelected(Tab::Media))
        m_filter.populateFilteredMediaData();
}

} // namespace vantrell

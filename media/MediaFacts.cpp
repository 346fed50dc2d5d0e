#include "media/MediaFacts.h"

#include "media/MediaKeys.h"

namespace vantrell
{

void setFileFacts(RowRecord &record, const std::optional<FileFacts> &facts)
{
    const std::initializer_list<RecordKey> keys{MediaKey::missing, MediaKey::modDate, MediaKey::filesize};
    for (const RecordKey &key : keys)
        record.remove(key);
    if (!facts)
        return;
    if (!facts->exists) {
        record.set(MediaKey::missing, true);
        return;
    }
    if (const auto modified = facts->modified)
        record.set(MediaKey::modDate, QDateTime::fromMSecsSinceEpoch(*modified, Qt::UTC));
    if (const auto size = facts->size)
        record.set(MediaKey::filesize, *size);
}

} // namespace vantrell

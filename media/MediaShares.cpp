#include "media/MediaShares.h"

#include "media/MediaKeys.h"

#include <QHash>

#include <algorithm>
#include <cstdint>
#include <tuple>

namespace vantrell
{

std::vector<MediaShare> mediaShares(const RowList &files,
                                    const std::function<QString(const RowRecord &file)> &groupOf)
{
    std::vector<MediaShare> shares;
    QHash<QString, std::size_t> indexes;
    double bytes = 0;
    for (const RowRecordPtr &file : files) {
        const QString name = groupOf(*file);
        const auto found = indexes.constFind(name);
        const std::size_t index = found != indexes.constEnd() ? *found : shares.size();
        if (index == shares.size()) {
            indexes.insert(name, index);
            shares.push_back({.name = name});
        }
        const double size = double(std::uint64_t(file->get(MediaKey::filesize)));
        shares[index].bytes += size;
        ++shares[index].files;
        bytes += size;
    }
    for (MediaShare &share : shares)
        share.part = bytes > 0 ? share.bytes / bytes : double(share.files) / double(files.size());
    std::stable_sort(shares.begin(), shares.end(), [](const MediaShare &a, const MediaShare &b) {
        return std::tie(a.bytes, a.files) > std::tie(b.bytes, b.files);
    });
    return shares;
}

} // namespace vantrell

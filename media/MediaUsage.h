#pragma once

#include "xml/XmlNode.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <functional>

namespace vantrell
{

/// How many clip items on the tracks of a project's sequences use each file, counted in one pass over
/// those tracks. Immutable once made; then any thread.
class MediaUsage
{
public:
    /// \a document is the document node. With \a xmlType 1 its single sequence counts, with 0 each of
    /// the sequences, in which a document below a root `media` adds its audio once per sequence.
    /// \a isCancelled is asked between sequences; once it holds, the counts are of no use.
    MediaUsage(XmlNode document, std::int64_t xmlType, const XmlNodeList &sequences,
               const std::function<bool()> &isCancelled);

    /// The video clip items that use the file with that id, or, when there are none, its audio ones. The
    /// id is compared with the `id` attributes as they stand in the project. An id that holds a double
    /// quote counts 0.
    std::int64_t usageOf(const QString &clipID) const;

private:
    using Counts = QHash<QString, std::int64_t>;

    Counts m_video;
    Counts m_audio;
};

} // namespace vantrell

#pragma once

#include "support/files/Result.h"
#include "xml/XmlNode.h"

#include <QString>

#include <atomic>
#include <utility>
#include <vector>

class QIODevice;

namespace vantrell
{

/// Writes elements as XML text: UTF-8, without a declaration or added white space. Only what is written
/// differently is copied; the tree is read-only. Any thread, while nobody edits the tree. Fails when the
/// device fails and once `cancelled` (may be null) is set.
namespace XmlElementWriter
{

/// What is written of an element instead of what the tree holds.
struct Changes {
    QString attribute; ///< name of its only attribute
    QString value;
    /// Children of the element, null ones ignored, and the text that replaces the content of each.
    std::vector<std::pair<XmlNode, QString>> texts;
};

Result<void> write(XmlNode element, QIODevice &device, const std::atomic<bool> *cancelled = nullptr);
/// Writes what write() would after XmlEdit had made the changes to a copy of the element.
Result<void> writeChanged(XmlNode element, const Changes &changes, QIODevice &device,
                          const std::atomic<bool> *cancelled = nullptr);

} // namespace XmlElementWriter
} // namespace vantrell

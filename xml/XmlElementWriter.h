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

/// Writes elements as XML text: UTF-8, without a declaration and without added white space. Nothing is
/// copied but what is written differently, and the tree is only read. Any thread, while nobody edits the
/// tree. Once `cancelled` is set (null for never) writing fails, as it does when the device does.
namespace XmlElementWriter
{

/// What is written of an element instead of what the tree holds.
struct Changes {
    QString attribute; ///< name of its only attribute
    QString value;
    /// Children of the element, null ones passed over, and the text that is all that each then holds.
    std::vector<std::pair<XmlNode, QString>> texts;
};

Result<void> write(XmlNode element, QIODevice &device, const std::atomic<bool> *cancelled = nullptr);
/// Writes what write() would after XmlEdit had made the changes to a copy of the element.
Result<void> writeChanged(XmlNode element, const Changes &changes, QIODevice &device,
                          const std::atomic<bool> *cancelled = nullptr);

} // namespace XmlElementWriter
} // namespace vantrell

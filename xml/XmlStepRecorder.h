#pragma once

#include "xml/XmlElementOrder.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

namespace vantrell
{

class XmlChanges;
class XmlDocument;
class XmlTree;

/// Writes what edits did to a document as steps that XmlStepPlayer can repeat on another tree of the same
/// file, or of a similar one. A step takes bytes in proportion to its change. It belongs to one document and
/// the thread that edits it.
class XmlStepRecorder
{
public:
    /// The order of the elements in the file that the steps are for; null when it is not known.
    explicit XmlStepRecorder(std::shared_ptr<const XmlElementOrder> order);
    ~XmlStepRecorder();
    XmlStepRecorder(const XmlStepRecorder &) = delete;
    XmlStepRecorder &operator=(const XmlStepRecorder &) = delete;

    /// The step for the document's last changes, which belongs behind all steps before. Throws std::bad_alloc
    /// without memory; after that there are no more steps to be had.
    std::string encode(XmlDocument &document, const XmlChanges &changes);

    /// Whether the document's last changes have left all texts and elements as they were.
    static bool leftAllEqual(XmlDocument &document, const XmlChanges &changes);

    const std::shared_ptr<const XmlElementOrder> &order() const { return m_order; }

private:
    class Step;

    std::shared_ptr<const XmlElementOrder> m_order;
    std::unordered_map<std::uint32_t, std::uint32_t> m_numbers; // of elements, by id
    std::unordered_map<std::uint32_t, std::uint32_t> m_names;   // indexes by id
    std::uint32_t m_lastNumber;
};

} // namespace vantrell

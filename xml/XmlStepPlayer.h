#pragma once

#include "xml/XmlElementOrder.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vantrell
{

class XmlDocument;
class XmlTree;

/// Repeats the steps of an XmlStepRecorder on a document, one after another: one that was read from the same
/// file, or from one that was changed since. There an operation is left out unless the element that it
/// concerns is found without doubt and still holds what it held. Belongs to the thread that edits the
/// document.
class XmlStepPlayer
{
public:
    /// The order of the elements in the document as it was read, when the file is the one that the steps are
    /// for; null for another one. The document outlives the player.
    XmlStepPlayer(XmlDocument &document, std::shared_ptr<const XmlElementOrder> order);
    ~XmlStepPlayer();
    XmlStepPlayer(const XmlStepPlayer &) = delete;
    XmlStepPlayer &operator=(const XmlStepPlayer &) = delete;

    struct Outcome {
        std::uint32_t done = 0;    ///< operations
        std::uint32_t leftOut = 0; ///< operations
        bool isReadable = true;    ///< if not, nothing was done, and no further step can be repeated
    };
    Outcome play(std::string_view step);
    /// Only takes notice of the step, which has been repeated in another way.
    Outcome pass(std::string_view step);

private:
    class Step;
    struct Sibling {
        std::uint32_t name;
        std::uint64_t key;
        std::uint32_t index; ///< among those of its name, from 1 on
        std::uint32_t id;
    };

    const std::vector<Sibling> &childrenOf(std::uint32_t parent);

    XmlDocument &m_document;
    XmlTree &m_tree;
    std::shared_ptr<const XmlElementOrder> m_order;
    const std::uint32_t m_firstNew;        // what steps make has ids from here on
    std::vector<std::uint32_t> m_elements; // ids by number; 0 for one that was not found
    std::vector<std::uint32_t> m_names;    // ids by index
    std::unordered_map<std::uint32_t, std::vector<Sibling>> m_children; // of parents, by name and key
};

} // namespace vantrell

#pragma once

// For use inside xml/ only.

#include "xml/XmlTree.h"

#include <cstdint>

/// How XmlStepRecorder writes a step and XmlStepPlayer reads it: operations, each behind its code. Elements
/// have numbers in the order in which they first occur, the document has number 1, and 0 is none. Names have
/// indexes in that order too, and are defined where they first occur.
namespace vantrell::XmlStepFormat
{

enum class Operation : std::uint8_t {
    /// An element that was in the file gets the next number: number of the parent, name, Identity.
    Introduce = 1,
    /// The element's children become those that follow: number, contentOf() before, children up to End.
    SetContent,
    /// The element is taken out of the tree: number.
    Remove,
    /// An element gets its place behind a sibling: number of the parent, number of the sibling element or 0
    /// for the front, how many other nodes are between them, then the element as a child.
    Place,
};

/// What stands in front of a child.
enum class Child : std::uint8_t {
    End,
    Known,   ///< an element by its number
    Element, ///< a new one, which gets the next number: name, count of attributes, attributes, children, End
    Text,
    CData,
    Comment,
    Instruction, ///< name, text
    Doctype,
};

constexpr std::uint32_t documentNumber = 1;

/// How well the key of an element tells it from its siblings.
enum class KeyKind : std::uint8_t {
    Content, ///< attributes and the first children
    IdName,  ///< id and name
    Uuid,
};

/// What tells an element from others of its parent's children, also in a file that was changed since.
struct Identity {
    KeyKind kind = KeyKind::Content;
    std::uint64_t key = 0;
    bool isOnly = false;        ///< the only one of its name
    std::uint32_t index = 0;    ///< among those of its name, from 1 on; 0 when not known
    std::uint32_t position = 0; ///< in the document, see XmlElementOrder; 0 when not known
};

/// Looks at a limited number of siblings and children only. The position is left 0.
Identity identityOf(const XmlTree &tree, XmlNodeId element);

/// The key of identityOf() alone.
std::uint64_t keyOf(const XmlTree &tree, XmlNodeId element, KeyKind *kind = nullptr);

/// A digest of the children of an element: texts whole, elements by their names.
std::uint64_t contentOf(const XmlTree &tree, XmlNodeId element);

} // namespace vantrell::XmlStepFormat

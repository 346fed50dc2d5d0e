#pragma once

// For use inside xml/ only.

#include "xml/XmlInput.h"
#include "xml/XmlTree.h"

#include <QString>

#include <atomic>
#include <cstdint>

namespace vantrell
{

/// The maximum nesting of elements; copying a tree recurses.
constexpr int maximumElementDepth = 1000;

struct ParseRequest {
    XmlSource source;
    /// Repair malformed input. When off, the first fatal error ends the parse.
    bool tolerant = true;
    /// Keep white space between elements as well.
    bool keepsSpace = false;
    /// Polled; once true, the parse ends without a tree. May be null.
    const std::atomic<bool> *cancelled = nullptr;
};

/// How much of the input is missing from its tree.
struct XmlLoss {
    bool isCutOff = false;            ///< the input ends inside an element
    std::int64_t droppedElements = 0; ///< elements after the end of the root element
    std::int64_t bytesRead = 0;       ///< of the input, up to the end of the tree
    std::int64_t bytesTotal = -1;     ///< -1 when unknown
    /// Text, comments and the like after the end of the root element, where no elements are.
    bool droppedText = false;
    /// Elements that became a part of a comment or instruction whose end was not recognised.
    std::int64_t elementsInComments = 0;
    /// The line of a broken tag that may have put elements into others than they belong to; 0 for none.
    int misplacedLine = 0;
    std::int64_t droppedReferences = 0; ///< "&" and "<" that start no reference or tag
    int firstDropped = 0;               ///< line of the first of them
    bool hasDroppedEntities = false;    ///< whether the document type declares entities

    bool isLoss() const
    {
        return isCutOff || droppedElements > 0 || droppedText || elementsInComments > 0 ||
               misplacedLine > 0 || droppedReferences > 0 || hasDroppedEntities;
    }
};

struct ParseOutcome {
    bool hasTree = false;  ///< whether the input gave any tree
    bool repaired = false; ///< the input was not well-formed
    bool tooDeep = false;
    bool tooManyValues = false;  ///< in an enumeration of the document type
    bool tooManyHyphens = false; ///< in comments
    bool readFailed = false;
    bool cancelled = false;
    bool outOfMemory = false;
    QString firstError; ///< with its line; empty when there was none
    QString lastError;  ///< without
    XmlLoss loss;
};

/// Parses into an empty tree. White space between elements is dropped; white space that is all the content of
/// an element, or that is next to text, CDATA or a repaired reference, is kept. Nothing is fetched, no entity
/// is declared or expanded, no attribute gets a default. The tree is always written as well-formed XML,
/// whatever was repaired. Any thread.
ParseOutcome parseXml(const ParseRequest &request, XmlTree &tree);

} // namespace vantrell

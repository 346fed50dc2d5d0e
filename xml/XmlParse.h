#pragma once

// For use inside xml/ only.

#include "xml/XmlInput.h"
#include "xml/XmlTree.h"

#include <QString>

#include <atomic>
#include <cstdint>

namespace vantrell
{

/// Elements may stand in one another this deep; copying a tree recurses.
constexpr int maximumElementDepth = 1000;

struct ParseRequest {
    XmlSource source;
    /// Repair what is malformed. Off, the first fatal error ends the parse.
    bool tolerant = true;
    /// Keep all white space, also what stands between elements.
    bool keepsSpace = false;
    /// Looked at now and then; once true, the parse ends without a tree. May be null.
    const std::atomic<bool> *cancelled = nullptr;
};

/// How much of an input is missing from its tree.
struct XmlLoss {
    bool isCutOff = false;            ///< the input ends inside of elements
    std::int64_t droppedElements = 0; ///< that come after the end of the root element
    std::int64_t bytesRead = 0;       ///< of the input, up to where the tree ends
    std::int64_t bytesTotal = -1;     ///< -1 when it is not known

    bool isLoss() const { return isCutOff || droppedElements > 0; }
};

struct ParseOutcome {
    bool hasTree = false;  ///< whether anything could be made of the input
    bool repaired = false; ///< the input was not well-formed
    bool tooDeep = false;
    bool tooManyDefaults = false; ///< of attributes
    bool readFailed = false;
    bool cancelled = false;
    bool outOfMemory = false;
    QString firstError; ///< with its line; empty when there was none
    QString lastError;  ///< without
    XmlLoss loss;
};

/// Parses into an empty tree. White space between elements is left out; white space that is all an element
/// holds, or that stands beside text, CDATA or a repaired reference in one element, stays. Nothing is
/// fetched, no entity is declared or expanded, no attribute gets a default. What is written of the tree is
/// well-formed, whatever was repaired. Any thread.
ParseOutcome parseXml(const ParseRequest &request, XmlTree &tree);

} // namespace vantrell

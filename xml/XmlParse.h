#pragma once

// For use inside xml/ only: it speaks the XML library's types.

#include "xml/TreeMemory.h"

#include <libxml/tree.h>

#include <QString>

#include <atomic>
#include <functional>

namespace vantrell
{

/// Elements may stand in one another this deep; copying a tree and searching it recurse.
constexpr int maximumElementDepth = 1000;

struct ParseRequest {
    /// Fills the buffer with up to the given number of bytes; 0 at the end, -1 on a failed read.
    std::function<int(char *, int)> read;
    /// Repair what is malformed. Off, the first fatal error ends the parse.
    bool tolerant = true;
    /// Looked at now and then; once true, the parse ends without a tree. May be null.
    const std::atomic<bool> *cancelled = nullptr;
};

struct ParseOutcome {
    xmlDoc *tree = nullptr; ///< owned by the caller; null when nothing could be made of the input
    bool repaired = false;  ///< the input was not well-formed
    bool tooDeep = false;
    bool readFailed = false;
    bool cancelled = false;
    QString firstError; ///< of the parser, with its line; empty when there was none
};

/// Parses into the arena's memory. White space between elements is left out; white space that is all
/// an element holds, or that stands beside text, CDATA or a repaired reference in one element, stays.
/// Nothing is fetched, no entity is declared or expanded, no attribute gets a default. Any thread.
ParseOutcome parseXml(const ParseRequest &request, TreeMemory::Arena &arena);

} // namespace vantrell

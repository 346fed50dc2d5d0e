#pragma once

#include "document/MyDocument.h"

#include <cstdint>
#include <optional>

namespace vantrell
{

class MarkerFields;

/// Fills a document's marker list from its tree, and the rows that the marker table shows from the list.
class MarkerInventory
{
public:
    /// Both outlive the inventory.
    MarkerInventory(MyDocument &document, MarkerFields &fields);

    /// Rebuilds the marker list. On a thread of its own, or on the main thread; one at a time.
    void populateMarkerData();

    /// Rebuilds the rows on show: all markers in their order, or those of the chosen colour as the table
    /// is sorted. Any thread while nobody edits markers. Of rebuilds that overlap the last one started
    /// counts; one during which the tab changed is dropped.
    void populateFilteredMarkerData();
    /// The action of the colour filter. Main thread.
    void changeMarkerFilter();

    /// Counts how often the list was replaced by populateMarkerData(). Main thread.
    std::uint64_t generation() const { return m_generation; }

private:
    /// The records; nothing when the document closes meanwhile.
    std::optional<RowList> extract() const;

    MyDocument &m_document;
    MarkerFields &m_fields;
    std::uint64_t m_generation = 0;  // main thread
    std::uint64_t m_lastRebuild = 0; // of the filtered view; main thread
};

} // namespace vantrell

#pragma once

#include "document/MyDocument.h"
#include "markers/OwnOwner.h"

#include <QLocale>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace vantrell
{

class MarkerFields;

/// Fills a document's marker list from its tree, and the rows that the marker table shows from the list.
class MarkerInventory
{
public:
    /// The user default, a boolean, that tells whether the window lists each marker under its own owners.
    static inline const QString ownOwnersDefault = QStringLiteral("ownOwners");

    /// Both outlive the inventory.
    MarkerInventory(MyDocument &document, MarkerFields &fields);

    /// Rebuilds the marker list. On a thread of its own, or on the main thread; one at a time.
    void populateMarkerData();

    /// Rebuilds the rows on show: all markers in their order, or those of the chosen colour as the table
    /// is sorted; see MyDocument::rebuildRows(). Any thread while nobody edits markers.
    void populateFilteredMarkerData();
    /// The action of the colour filter. Main thread.
    void changeMarkerFilter();

    /// Which owners the next populateMarkerData() lists, and editing keeps listed; by position at first.
    /// Main thread, while no inventory runs.
    void setOwnerListing(OwnerListing listing) { m_listing = listing; }
    OwnerListing ownerListing() const { return m_listing; }
    /// How many markers populateMarkerData() listed under another sequence or clip than their own, as a
    /// clause without a full stop, with numbers as the locale writes them; empty when there are none. Main
    /// thread.
    QString listedUnderOthersText(const QLocale &numbers = QLocale::c()) const;
    std::size_t listedUnderOthers() const { return m_listedUnderOthers; }
    /// The number as it is after edits, for the two above; see UnderOthers. Main thread.
    void setListedUnderOthers(std::size_t count);

    /// Counts how often the list was replaced by populateMarkerData(). Main thread.
    std::uint64_t generation() const { return m_generation; }

private:
    struct Extracted {
        RowList rows;
        std::size_t underOthers = 0; ///< listed under another sequence or clip than their own
    };
    /// Nothing when the document closes meanwhile.
    std::optional<Extracted> extract() const;

    MyDocument &m_document;
    MarkerFields &m_fields;
    OwnerListing m_listing = OwnerListing::ByPosition;
    std::size_t m_listed = 0;
    std::size_t m_listedUnderOthers = 0; // of those
    std::uint64_t m_generation = 0;      // main thread
};

} // namespace vantrell

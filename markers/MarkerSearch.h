#pragma once

#include "document/MyDocument.h"
#include "markers/MarkerConditions.h"
#include "rows/RowSearch.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

namespace vantrell
{

/// The colour filter: all markers in their order, or those of one colour as the table is sorted. Main thread.
RowView::Filter markerColorFilter(const ViewState &state);

/// Narrows the marker table further than the colour filter does. A marker that is added stays on show until
/// the conditions change, whether they hold for it or not. Main thread; the document outlives the object.
class MarkerSearch
{
public:
    /// All of them hold.
    struct Conditions {
        QString text = {};                         ///< see RowSearch; empty for none
        std::optional<std::int64_t> sequence = {}; ///< the item of the sequence menu
        std::optional<MarkerFlag> flag = {};       ///< that is set

        bool isEmpty() const { return text.isEmpty() && !sequence && !flag; }
        friend bool operator==(const Conditions &, const Conditions &) = default;
    };

    explicit MarkerSearch(MyDocument &document);
    MarkerSearch(const MarkerSearch &) = delete;
    MarkerSearch &operator=(const MarkerSearch &) = delete;
    /// The colour filter alone counts again.
    ~MarkerSearch();

    const Conditions &conditions() const;
    /// Shows the markers that fulfil these, in the order in which the table is, if the Markers tab shows.
    void setConditions(const Conditions &conditions);

    /// See RowSearch. While some markers are hidden, it goes on to sort them all in the background.
    bool prepare(std::chrono::milliseconds time);
    void forget();

private:
    struct State;
    struct Sorting;

    RowList foundIn(const RowList &base);
    RowList foundAmong(const RowList &some) const;
    RowList foundInList() const;
    RowList unsearchedRows() const;
    RowList sortedAsView(RowList rows) const;
    void prepareAll();
    bool prepareBase(std::chrono::milliseconds time);
    void takeBase(const std::vector<std::uint32_t> &order);
    void forgetBase();
    void forgetOtherList();

    MyDocument &m_document;
    std::shared_ptr<State> m_state;
    std::uint64_t m_generation = 0;     // of the list that texts are kept of
    std::optional<RowList> m_base;      // what shows without conditions, in the order of the table; if known
    RowSearch::Places m_places;         // of these rows, or of the visible ones if those are they; if known
    std::unique_ptr<Sorting> m_sorting; // of those rows, which are not known yet; null for none
    bool m_shows = false;               // rows that fulfil them
    QObject m_context;                  // of connections
};

} // namespace vantrell

#pragma once

#include "media/MediaFilter.h"
#include "media/MediaUseColumns.h"
#include "rows/RowSearch.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>

namespace vantrell
{

/// Narrows the media table further than the kind and drive menus do. Main thread; the document and the filter
/// outlive the object.
class MediaSearch
{
public:
    enum class State { Any, Missing, Unused, UnknownKind };
    /// Both hold.
    struct Conditions {
        QString text = {};        ///< part of the file's path, see RowSearch; empty for none
        State state = State::Any; ///< of the file; none is Unused before the index has its facts

        friend bool operator==(const Conditions &, const Conditions &) = default;
    };

    MediaSearch(MyDocument &document, MediaFilter &filter, std::shared_ptr<const MediaUseIndex> uses);
    MediaSearch(const MediaSearch &) = delete;
    MediaSearch &operator=(const MediaSearch &) = delete;
    ~MediaSearch();

    const Conditions &conditions() const { return m_conditions; }
    /// Shows the files that fulfil these, if the Media tab shows.
    void setConditions(const Conditions &conditions);

    /// See RowSearch.
    bool prepare(std::chrono::milliseconds time);
    void forget() { m_search.forget(); }

private:
    void forgetOtherList();

    MyDocument &m_document;
    MediaFilter &m_filter;
    std::shared_ptr<const MediaUseIndex> m_uses;
    Conditions m_conditions;
    RowSearch m_search;
    std::uint64_t m_generation = 0; // of the list that texts are kept of
    QObject m_context;              // of connections
};

} // namespace vantrell

#pragma once

#include "rows/RowRecord.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace vantrell
{

/// Reads the marker lists of other editing systems: text with tabs between the fields of a line and no
/// quoting of any kind. Stateless; any thread, also on any kind of file. A line with another number of
/// fields than the format has is passed over. Each operation gives the rows in the file's order
/// (possibly none), with the keys of ImportedMarkerKey, and nothing when the file cannot be read or is
/// no text in the format's encoding. What was read goes to the log.
class QVMarkerListParser
{
public:
    QVMarkerListParser() = delete;

    /// A Final Cut Pro marker list, UTF-16 or else UTF-8 (see MarkerListText): a header line, whatever
    /// it holds, then lines of seven fields.
    /// `lines`, where it is not null, gets the number of each row's line, the first of the file 1.
    static std::optional<RowList> fcpMarkerListFromFile(const QString &path,
                                                        std::vector<std::size_t> *lines = nullptr);

    /// An Avid locator list, UTF-8: lines of five fields, no header.
    static std::optional<RowList> avidLocatorListFromFile(const QString &path,
                                                          std::vector<std::size_t> *lines = nullptr);

    /// Chapter lists of DVD authoring are not read: always nothing.
    static std::optional<RowList> dvdspChapterListFromFile(const QString &path);
};

} // namespace vantrell

#pragma once

#include "rows/RowRecord.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace vantrell
{

/// Reads the marker lists of other editing systems: lines of tab-separated fields without quoting. Stateless;
/// any thread. Lines with a wrong number of fields are skipped. Each operation returns the rows in file order
/// (possibly none), with the keys of ImportedMarkerKey; nullopt when the file cannot be read or is not text
/// in the encoding of the format. The result is logged.
class QVMarkerListParser
{
public:
    QVMarkerListParser() = delete;

    /// A Final Cut Pro marker list, UTF-16 or else UTF-8 (see MarkerListText): a header line, whatever it
    /// holds, then lines of seven fields. `lines`, if not null, gets the line number of each row, counted
    /// from 1.
    static std::optional<RowList> fcpMarkerListFromFile(const QString &path,
                                                        std::vector<std::size_t> *lines = nullptr);

    /// An Avid locator list, UTF-8: lines of five fields, no header.
    static std::optional<RowList> avidLocatorListFromFile(const QString &path,
                                                          std::vector<std::size_t> *lines = nullptr);

    /// DVD chapter lists are not supported: always nullopt.
    static std::optional<RowList> dvdspChapterListFromFile(const QString &path);
};

} // namespace vantrell

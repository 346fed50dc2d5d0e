#pragma once

#include "rows/RowRecord.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace vantrell
{

/// Which lines of a list were read, counted from 1.
struct ListLines {
    /// A line that is no row.
    struct Skipped {
        std::size_t line = 0;
        std::size_t fields = 0; ///< that it has
        std::size_t wanted = 0; ///< that a row has
    };

    std::vector<std::size_t> ofRows; ///< in the order of the rows
    std::vector<Skipped> skipped;    ///< without the header and blank lines
};

/// Reads the marker lists of other editing systems: lines of tab-separated fields without quoting. Stateless;
/// any thread. Lines with a wrong number of fields are skipped. Each operation returns the rows in file order
/// (possibly none), with the keys of ImportedMarkerKey; nullopt when the file cannot be read or is not text
/// in the encoding of the format. The result is logged.
class QVMarkerListParser
{
public:
    QVMarkerListParser() = delete;

    /// A Final Cut Pro marker list, UTF-16 or else UTF-8 (see MarkerListText): a header line, whatever it
    /// holds, then lines of seven fields. `lines` may be null.
    static std::optional<RowList> fcpMarkerListFromFile(const QString &path, ListLines *lines = nullptr);

    /// An Avid locator list, UTF-8: lines of five fields. A header is a first line that is no row.
    static std::optional<RowList> avidLocatorListFromFile(const QString &path, ListLines *lines = nullptr);

    /// DVD chapter lists are not supported: always nullopt.
    static std::optional<RowList> dvdspChapterListFromFile(const QString &path);
};

} // namespace vantrell

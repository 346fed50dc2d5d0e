#pragma once

#include "cli/CommandLine.h"
#include "cli/ProjectSession.h"
#include "compare/SequenceEvents.h"
#include "rows/Column.h"
#include "rows/SortDescriptor.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantrell::cli
{

/// Reads the values of --sequence, each a menu index or, where it is none, the title of menu items, of
/// which all that have it are meant; the indexes ascending. Nothing, after a message on standard error, when
/// there is no such sequence. After the load.
std::optional<std::vector<int>> readSequenceOption(const std::vector<std::string> &values,
                                                   MyDocument &document);

/// The options that name two cuts.
struct CutOptions {
    std::string before;
    std::string after;
    std::vector<std::string> sequences;
};

/// Declares OLD, with that help text, NEW and --sequence.
void addCutOptions(Subcommand &command, CutOptions &options, const char *oldHelp);

/// Two cuts, and the item of the second in its project's sequence menu.
struct CutPair {
    SequenceEvents before;
    SequenceEvents after;
    std::int64_t afterItem = 0;
};

/// Opens the projects and reads the sequences that the values of --sequence name, each by menu index or else
/// by name. Without values the first of the old project, and of the new one that of the same name, else the
/// first. Nothing, after a message on standard error, when a project cannot be opened or there is no such
/// sequence.
std::optional<CutPair> openCuts(const CutOptions &options, ProjectSession &before, ProjectSession &after);

/// Reads the value of --sort, "ID" or "ID:desc"; nothing unless ID is one of the columns or begins with the
/// prefix of columns that users add (null for none).
std::optional<SortDescriptor> readSortOption(const std::string &value, const Columns &columns,
                                             const QString &customPrefix = QString());

/// The columns' identifiers for a help text, joined by commas.
std::string sortChoices(const Columns &columns);

/// The help text of --color.
inline constexpr char colorHelp[] =
    "Only markers of one colour: red, orange, yellow, green, turquoise, blue, purple, pink, or 0 to 7";

/// The colour index named by the value of --color; nothing for a value that names none.
std::optional<int> colorChoice(const std::string &value);

/// The bits of a signed or unsigned 64-bit integer; nullopt when the text is anything else.
std::optional<quint64> wholeNumber(const QString &text);

} // namespace vantrell::cli

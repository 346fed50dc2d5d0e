#pragma once

#include "support/files/FileStamp.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell
{

/// What a journal is for: one project, as its file was when the first of the unsaved changes was made.
struct JournalHeader {
    QString projectPath;           ///< absolute
    QString typeName;              ///< of the document
    std::optional<FileStamp> file; ///< nothing when the project was not read from the file as it is
    std::uint32_t elements = 0;    ///< in the file; 0 when not known
};

/// One step of the unsaved changes.
struct JournalStep {
    std::int64_t time = 0;     ///< milliseconds since 1970, UTC
    std::uint32_t changes = 0; ///< that are unsaved after it, as the user counts them
    std::string content;       ///< what whoever keeps the journal stores and reads
};

/// What a journal holds.
struct JournalContents {
    JournalHeader header;
    std::vector<JournalStep> steps;
    QByteArray digest;              ///< of the project's file; empty when not known
    std::optional<FileStamp> saved; ///< the file with all steps in it, if saving got as far as that
    bool isTorn = false;            ///< what was written last is not whole and was left out
};

/// The format of journals: a mark with the version, then records, each with its length and a checksum of its
/// content, the header first. A record that is not whole ends the journal.
namespace JournalFile
{

/// The beginning of the file, and the records.
std::string beginning(const JournalHeader &header);
std::string record(const JournalStep &step);
std::string digestRecord(const QByteArray &digest);
std::string savedRecord(const FileStamp &saved);

enum class Fault {
    None,
    Empty,   ///< it ends before its header does
    Foreign, ///< written by another version of the program
    Damaged,
};

/// Reads the bytes of a whole file.
Fault read(std::string_view bytes, JournalContents &contents);

} // namespace JournalFile
} // namespace vantrell

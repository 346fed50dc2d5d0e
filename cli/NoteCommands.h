#pragma once

#include "cli/ProjectSession.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrell::cli
{

/// marker-list --format auto: prints what the reader of notes makes of the file. Returns the exit status.
int listNotes(const std::string &file, bool asJson);

struct NoteImportOptions {
    std::string file;
    std::vector<std::string> lists;
    std::string output;
    std::optional<std::string> sequence;
    std::optional<std::string> time;
    std::optional<std::string> rate;
    std::vector<std::string> map;
    bool preview = false;
    bool json = false;
};

/// import --format auto. Returns the exit status.
int importNotes(const NoteImportOptions &options);

} // namespace vantrell::cli

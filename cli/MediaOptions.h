#pragma once

#include "cli/CommandLine.h"
#include "cli/ProjectSession.h"
#include "media/MediaUses.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrell::cli
{

/// The arguments of the subcommand `media`.
struct MediaOptions {
    std::string file;
    std::string kind;
    std::string drive;
    std::vector<std::string> sequences;
    std::string search;
    std::vector<std::string> mappings;
    std::optional<std::string> handles;
    std::optional<std::string> sort;
    std::optional<std::string> verify;
    std::string list;
    std::string output;
    bool missing = false;
    bool unused = false;
    bool uses = false;
    bool check = false;
    bool json = false;
};

/// A project whose media files are on show as the options ask for, and what they are used for. Each function
/// prints one of the forms that the options choose, and returns the exit status.
struct MediaListing {
    ProjectSession &session;
    const MediaUses *uses; ///< null where the options do not need it
    MediaUses::Choice choice;
};

int printMediaUses(const MediaOptions &options, const MediaListing &listing);
int printMediaCheck(const MediaOptions &options, const MediaListing &listing);
int writeMediaList(const MediaOptions &options, const MediaListing &listing);
/// Without a listing (null) all files of the hash list are verified.
int verifyMedia(const MediaOptions &options, const MediaListing *listing);

} // namespace vantrell::cli

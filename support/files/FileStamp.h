#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace vantrell
{

/// What tells one state of a regular file from another without reading it.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t number = 0; ///< of the file on its device
    std::int64_t size = 0;    ///< bytes
    std::int64_t seconds = 0; ///< of the last change, since 1970
    std::int64_t nanoseconds = 0;
    bool operator==(const FileStamp &) const = default;

    /// Links are followed. Nothing when there is no regular file.
    static std::optional<FileStamp> ofPath(const QString &path);
    static std::optional<FileStamp> ofDescriptor(int descriptor);
};

} // namespace vantrell

#pragma once

#include "markers/MarkerColors.h"

#include <QString>

#include <array>

namespace vantrell
{

/// The pictures that a report shows beside names: PNG files of the program, one for each marker colour,
/// then a clip and a sequence. Any thread.
class ReportImages
{
public:
    static constexpr std::size_t clip = MarkerColors::count; // the colours have the places before it
    static constexpr std::size_t sequence = clip + 1;
    static constexpr std::size_t count = sequence + 1;

    /// Looks once which of the files are in the folder; none are for an empty path.
    explicit ReportImages(const QString &folder);

    /// The folder with the program's own: share/vantrell/report-images beside the folder of the running
    /// program, in a build as in an installation.
    static QString standardFolder();

    /// The file's name without ".png".
    static QString name(std::size_t image);
    /// Empty when the folder has no such file.
    const QString &path(std::size_t image) const { return m_paths[image]; }

private:
    std::array<QString, count> m_paths;
};

} // namespace vantrell

#pragma once

#include "markers/MarkerColors.h"

#include <QString>

#include <array>

namespace vantrell
{

/// The pictures that a report shows beside names: PNG files of the program for each marker colour, followed
/// by a clip and a sequence. Any thread.
class ReportImages
{
public:
    static constexpr std::size_t clip = MarkerColors::count; // after the colours
    static constexpr std::size_t sequence = clip + 1;
    static constexpr std::size_t count = sequence + 1;

    /// Checks once which of the files exist in the folder; none for an empty path.
    explicit ReportImages(const QString &folder);

    /// The folder of the program's own pictures: ../share/vantrell/report-images relative to the folder of
    /// the running program, in a build as well as installed.
    static QString standardFolder();

    /// The file's name without ".png".
    static QString name(std::size_t image);
    /// Empty without such a file.
    const QString &path(std::size_t image) const { return m_paths[image]; }

private:
    std::array<QString, count> m_paths;
};

} // namespace vantrell

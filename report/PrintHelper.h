#pragma once

#include "support/files/FileUtilities.h"
#include "support/files/Result.h"

#include <QString>

#include <functional>
#include <optional>

/// The program that makes PDF files of reports. It comes with the package "vantrell-print", so that programs
/// without a window system need no web engine. It is started as
///
///     vantrell-print-pdf --html FILE --images FOLDER -o OUTPUT [--paper NAME] [--landscape] [--margin MM]
///                        [--no-numbers]
///
/// FILE is the report, HTML in UTF-8, which the text itself does not say; it may have hundreds of megabytes,
/// and its name ends in ".html". FOLDER holds the pictures that the report names by "file://" and their
/// paths. The texts of a report come from a project file and may hold markup: no script in them runs, and
/// nothing is read but FILE, OUTPUT and what lies in FOLDER, nor anything from the network. OUTPUT is there,
/// empty, and is replaced or filled; its caller puts it into its place once the program has ended, so it need
/// not be written atomically. All three are absolute paths.
///
/// The pages are of the size that the user's country uses, upright, numbered, with margins of 15 mm, unless
/// the options say otherwise; the text is as wide as a page allows. There is no display. Nothing comes from
/// standard input and nothing goes to standard output. The exit status is 0 when OUTPUT is whole, else 1 (2
/// for wrong usage), with a sentence for the user on standard error. The program ends when the one that
/// started it does.
namespace vantrell::PrintHelper
{

/// The program's path: in the folder of the running program, else in ../libexec/vantrell as seen from there;
/// null when it is in neither.
QString find();

/// What a user is told when it is not there.
QString missingMessage();

/// What the pages are to be like.
struct Pages {
    QString paper; ///< null for what the country uses
    bool isLandscape = false;
    double margin = 15; ///< millimetres
    bool withNumbers = true;
};

/// Has the program make a PDF of the HTML, whole or not at all; waits for it, an hour at the most, or
/// until `isCancelled`, asked every few milliseconds, holds. Any thread.
Result<void> writePDF(const QString &program, const FileUtilities::Writer &html, const QString &imageFolder,
                      const QString &output, const std::optional<Pages> &pages = std::nullopt,
                      const std::function<bool()> &isCancelled = {});

} // namespace vantrell::PrintHelper

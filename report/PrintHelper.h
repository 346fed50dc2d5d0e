#pragma once

#include "support/files/FileUtilities.h"
#include "support/files/Result.h"

#include <QString>

#include <functional>
#include <optional>

/// Runs the program that makes PDF files of reports. It is part of the package "vantrell-print", so that
/// programs without a window need no web engine. Its command line is
///
///     vantrell-print-pdf --html FILE --images FOLDER -o OUTPUT [--paper NAME] [--landscape] [--margin MM]
///                        [--no-numbers]
///
/// FILE is the report, HTML in UTF-8 without an encoding declaration; it may have hundreds of megabytes, and
/// its name ends in ".html". FOLDER holds the pictures, which the report refers to by "file://" URLs. Reports
/// contain text from project files, which may include markup: no script runs, no file is read except FILE and
/// those in FOLDER, and nothing is loaded from the network. OUTPUT is an existing empty file that is replaced
/// or filled; the caller renames it afterwards, so it need not be written atomically. All three are absolute
/// paths.
///
/// Unless options say otherwise, pages have the paper size of the user's country, portrait orientation,
/// numbers and margins of 15 mm; text uses the full width. The program needs no display and uses neither
/// standard input nor standard output. The exit status is 0 when OUTPUT is complete, else 1, or 2 for wrong
/// usage, with a message for the user on standard error. The program ends with its parent process.
namespace vantrell::PrintHelper
{

/// The path of the program, in the folder of the running program or in ../libexec/vantrell relative to it;
/// null when it is not installed.
QString find();

/// The message for the user when it is not installed.
QString missingMessage();

/// The page setup.
struct Pages {
    QString paper; ///< null for that of the user's country
    bool isLandscape = false;
    double margin = 15; ///< millimetres
    bool withNumbers = true;
};

/// Runs the program to make a PDF file, written atomically, of the HTML. Waits up to an hour, or until
/// `isCancelled`, called every few milliseconds, returns true. Any thread.
Result<void> writePDF(const QString &program, const FileUtilities::Writer &html, const QString &imageFolder,
                      const QString &output, const std::optional<Pages> &pages = std::nullopt,
                      const std::function<bool()> &isCancelled = {});

} // namespace vantrell::PrintHelper

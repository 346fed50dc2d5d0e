#pragma once

#include "support/FileUtilities.h"
#include "support/Result.h"

#include <QString>

/// The program that makes PDF files of reports. It comes with the package "vantrell-print", so that programs
/// without a window system need no web engine. It is started as
///
///     vantrell-print-pdf --html FILE --images FOLDER -o OUTPUT
///
/// FILE is the report, HTML in UTF-8, which the text itself does not say; it may have hundreds of megabytes.
/// FOLDER holds the pictures that the report names by "file://" and their paths. The texts of a report come
/// from a project file and may hold markup: no script in them runs, and nothing is read but FILE, OUTPUT and
/// what lies in FOLDER, nor anything from the network. OUTPUT is there, empty, and is replaced or filled; its
/// caller puts it into its place once the program has ended, so it need not be written atomically. All three
/// are absolute paths.
///
/// The pages are of the size that the user's country uses, upright, the text as wide as a page allows. There
/// is no display. Nothing comes from standard input and nothing goes to standard output. The exit status is 0
/// when OUTPUT is whole, else 1 (2 for wrong usage), with a sentence for the user on standard error. The
/// program ends when the one that started it does.
namespace vantrell::PrintHelper
{

/// The program's path: in the folder of the running program, else in ../libexec/vantrell as seen from there;
/// null when it is in neither.
QString find();

/// What a user is told when it is not there.
QString missingMessage();

/// Has the program make a PDF of the HTML, whole or not at all; waits for it, an hour at the most. Any
/// thread.
Result<void> writePDF(const QString &program, const FileUtilities::Writer &html, const QString &imageFolder,
                      const QString &output);

} // namespace vantrell::PrintHelper

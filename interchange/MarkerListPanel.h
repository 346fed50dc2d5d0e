#pragma once

#include <QString>

#include <optional>

namespace vantrell
{

class MyDocument;

/// The names of the formats of marker lists.
namespace MarkerListFormat
{
inline const QString fcp = QStringLiteral("fcp");
inline const QString avid = QStringLiteral("avid");
/// Final Cut Pro X interchange files, read only.
inline const QString fcpx = QStringLiteral("fcpx");
} // namespace MarkerListFormat

/// The file panel that a window runs, as a sheet, to choose marker lists or the file to write. It offers
/// files only, several for reading; for writing, folders can be created.
struct MarkerListPanel {
    /// The panel's return code for its OK button.
    static constexpr int accepted = 1;

    /// Passed back when the panel ends.
    QString format;
    /// A file must match one of these: extension without the dot, classic file type code (0 for none),
    /// uniform type identifier (null for none).
    QString extension;
    quint32 fileTypeCode = 0;
    QString typeIdentifier;
    /// The file name to begin with; null for reading.
    QString proposedName;

    /// The panel for choosing files of the format; nullopt, after an alert, while the document is still
    /// loading its markers.
    static std::optional<MarkerListPanel> forOpening(MyDocument &document, const QString &format);

    /// The panel for writing one; the proposed name derives from the document's file.
    static std::optional<MarkerListPanel> forSaving(MyDocument &document, const QString &format);
};

} // namespace vantrell

#pragma once

#include <QString>

#include <optional>

namespace vantrell
{

class MyDocument;

/// The words that name the formats of marker lists.
namespace MarkerListFormat
{
inline const QString fcp = QStringLiteral("fcp");
inline const QString avid = QStringLiteral("avid");
/// Final Cut Pro X interchange files; can be read only.
inline const QString fcpx = QStringLiteral("fcpx");
} // namespace MarkerListFormat

/// The file panel that a window runs, as a sheet, to choose marker lists or where to write one. It
/// offers files only, several of them for reading; folders can be made where one is written.
struct MarkerListPanel {
    /// The panel's return code for its OK button.
    static constexpr int accepted = 1;

    /// Handed back when the panel ends.
    QString format;
    /// What a file needs one of: the extension, without its dot, the classic file type code (0 for
    /// none) or the uniform type identifier (null for none).
    QString extension;
    quint32 fileTypeCode = 0;
    QString typeIdentifier;
    /// The file name to begin with; null for reading.
    QString proposedName;

    /// The panel for choosing files of the format. Nothing, after an alert, while the document is
    /// still extracting its markers.
    static std::optional<MarkerListPanel> forOpening(MyDocument &document, const QString &format);

    /// The same for writing one; the name is made from that of the document's file.
    static std::optional<MarkerListPanel> forSaving(MyDocument &document, const QString &format);
};

} // namespace vantrell

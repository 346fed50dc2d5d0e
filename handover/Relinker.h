#pragma once

#include "document/MyDocument.h"
#include "handover/FileNames.h"
#include "handover/FolderWalk.h"
#include "handover/MediaHeader.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace vantrell
{

class MediaUses;

/// A file of the project that nothing was found for at its path.
struct MissingFile {
    QString url;                      ///< as it stands in the project
    QString path;                     ///< the URL's, or what the text can be taken for
    QString name;                     ///< the last component of the path
    std::optional<double> seconds;    ///< how long it is, if the project says so
    std::optional<double> start = {}; ///< its timecode in seconds since midnight, if the project says so
    std::optional<double> rate = {};  ///< frames a second, if the project says so
    QString reel = {};
};

/// A file on disk that may be a missing one.
struct RelinkCandidate {
    FolderWalk::Found file;
    NameMatch name = NameMatch::None;
    int alikeFolders = 0; ///< how many folders above the file are named as in the project, from it upwards
    std::optional<MediaHeader::Facts> header = {}; ///< nothing unless it was read
};

/// What was found for a missing file: nothing, one candidate, or several between which nothing that the
/// project knows decides. All have the best agreement of names that was found; in the order of their paths.
struct RelinkMatch {
    MissingFile missing;
    std::vector<RelinkCandidate> candidates;
};

/// A missing file and the one to take in its place.
struct RelinkChoice {
    QString url;
    FolderWalk::Found file;
};

/// Finds missing files of a project in other folders and writes their new places into it. Main thread unless
/// a member says otherwise. The document outlives the object.
class Relinker
{
public:
    explicit Relinker(MyDocument &document)
        : m_document(document)
    {
    }

    /// The files that the inventory has marked as missing, each URL once, in document order.
    std::vector<MissingFile> missingFiles() const;

    /// The relaxed names of the files, for a FolderWalk.
    static QSet<QString> namesOf(const std::vector<MissingFile> &missing);

    /// The candidates for each missing file, in their order. Where several files have the same name, those
    /// whose headers do not tell the duration that the project has are left out, as long as one does; and so
    /// for timecode, reel and rate. Reads headers of these files, so not for the main thread of a window. Any
    /// thread.
    static std::vector<RelinkMatch> matches(const std::vector<MissingFile> &missing,
                                            const std::vector<FolderWalk::Found> &found);

    /// Reads the header of a candidate unless it was read. Any thread that may wait for the disk.
    static void readHeader(RelinkCandidate &candidate);
    /// What the header of a candidate contradicts of what the project knows, such as "other duration"; empty
    /// for nothing, or when it was not read. Any thread.
    static QStringList contradictions(const MissingFile &missing, const RelinkCandidate &candidate);

    /// Writes the URLs of the chosen files into every file element that has the missing ones', marks the
    /// sequences that use them as modified and brings the media records up to date; the table does not hear
    /// of that. How many of the choices the project had; nothing is done, after an alert, while the document
    /// is being saved.
    std::size_t relink(const std::vector<RelinkChoice> &choices);
    /// The same with the uses of the document's media, which take a while to find out in a large project.
    std::size_t relink(const std::vector<RelinkChoice> &choices, const MediaUses &uses);

private:
    MyDocument &m_document;
};

} // namespace vantrell

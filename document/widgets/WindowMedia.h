#pragma once

#include "document/widgets/WindowPart.h"
#include "handover/MediaListChoice.h"
#include "rows/RowRecord.h"
#include "support/files/Result.h"

#include <QDialog>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <cstddef>
#include <memory>
#include <vector>

namespace vantrell
{

class MediaLook;
class UserDefaults;
struct PathMapping;
struct RelinkChoice;

/// Finds the media files of a window's document, writes lists of them and verifies these; the window owns it.
/// Main thread.
class WindowMedia final : private WindowPart
{
    Q_DECLARE_TR_FUNCTIONS(vantrell::WindowMedia)

public:
    WindowMedia(const WindowPart &part, UserDefaults &defaults);
    ~WindowMedia();
    WindowMedia(const WindowMedia &) = delete;
    WindowMedia &operator=(const WindowMedia &) = delete;

    /// The window has a new document, which has not been opened yet.
    void start();
    /// Goes on with a document that close() was called for, and looks for its files again.
    void resume();

    /// Asks where the missing files are; the user began with the one at that URL, or with none (null).
    void relink(const QString &url);
    void relinkTo(const std::vector<RelinkChoice> &choices);
    void editPathMappings();
    /// Asks for the form and the file of a list.
    void exportList();
    void exportListTo(const QString &path, MediaListFormat format, const MediaListScope &scope);
    /// Asks for a media hash list.
    void verifyList();
    void verifyListAt(const QString &path);

    /// Looks for the files again if the stored mappings have changed since; nothing before they are listed.
    void applyMappings();
    /// Ends what works on this document.
    void close();

private:
    struct Transfer;
    struct ListJob;

    RowList recordsOf(const MediaListScope &scope) const;
    void exportListOf(const RowList &listed, const QString &path, MediaListFormat format,
                      const MediaListScope &scope);
    void makeLook();
    bool mayChange();
    void relinked(std::size_t count);
    void storeMapping(const PathMapping &mapping);
    void openSheet(QDialog *sheet);
    void showInMedia(const QString &text);
    std::shared_ptr<Transfer> beginTransfer(const QString &text);
    void showProgress();
    bool endTransfer(const Transfer &transfer);
    void writeList(const std::shared_ptr<ListJob> &job, const std::shared_ptr<Transfer> &transfer);
    void exported(const ListJob &job, const Result<void> &written);

    UserDefaults &m_defaults;
    std::unique_ptr<MediaLook> m_look; ///< of the document
    QPointer<QDialog> m_sheet;
    std::shared_ptr<Transfer> m_transfer; ///< that goes on; null for none
    QTimer m_progressTimer;
    QString m_progressText;
};

} // namespace vantrell

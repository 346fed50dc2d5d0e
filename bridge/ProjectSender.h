#pragma once

#include "document/MyDocument.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace vantrell
{

class EventCancel;
class TransientFile;

/// Sends a document to the editing application that it belongs to: its changed sequences to Final Cut Pro,
/// or the whole project to Premiere Pro. Tells the outcome in an alert on the document's window. What is
/// changed while the changes so far are on their way counts as changed afterwards.
///
/// The document's own things are looked at and changed on the main thread; the tree is read beside it, while
/// which MyDocument::isSaving() holds and nothing may be edited. After that it may.
class ProjectSender
{
public:
    enum class Outcome {
        Sent,
        NothingToSend, ///< no sequence was changed
        Failed,        ///< an alert has told so
        Closed,        ///< the document was closed meanwhile, or another send of it goes on
    };

    /// The document outlives this object.
    explicit ProjectSender(MyDocument &document);
    /// Closes first.
    ~ProjectSender();
    ProjectSender(const ProjectSender &) = delete;
    ProjectSender &operator=(const ProjectSender &) = delete;

    /// The whole send, alert included; one at a time. Blocks until the application has answered (for up
    /// to ten minutes) and the user the alert. Any thread; where it is the main thread, the window stands
    /// still.
    Outcome sendToFCP();

    /// The same on a thread of its own. `ended`, which may be empty, is called on the main thread when it
    /// is over, and not at all when the document is closed before. False when that is going on already, or
    /// the document is being saved. Main thread.
    bool start(std::function<void(Outcome)> ended);
    /// Whether what start() began is not over. Main thread.
    bool isSending() const { return m_isSending; }

    /// Ends what a send waits for, and the send with it, without an alert; later ones end at once. For
    /// a document that is being closed: closes its gate to the main thread too. Any thread.
    void close();

private:
    Outcome send();
    Outcome sendToFinalCutPro(const QString &path, bool isChanged);
    Outcome sendToPremierePro(const QString &path);
    QByteArray outputDocument(const QStringList &modifiedUUIDs);
    Result<TransientFile> writeProject(const QString &path);
    bool onMainThread(const std::function<void()> &work);
    std::optional<QStringList> begin(const QString &label);
    void end(MyDocument::SendResult result);

    MyDocument &m_document;
    std::unique_ptr<EventCancel> m_cancel;
    std::atomic<bool> m_isClosed = false;
    std::thread m_thread;
    bool m_isSending = false; // main thread
};

} // namespace vantrell

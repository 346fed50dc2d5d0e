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

/// Sends a document to its editing application: the changed sequences to Final Cut Pro, or the whole project
/// to Premiere Pro. An alert on the document's window reports the outcome. Changes made during the send
/// remain unsent changes.
///
/// The document itself is accessed on the main thread only. Its tree is read on the sender's thread; until
/// that is done MyDocument::isSaving() is true and nothing may be edited.
class ProjectSender
{
public:
    enum class Outcome {
        Sent,
        NothingToSend, ///< no sequence was changed
        Failed,        ///< an alert has said so
        Closed,        ///< the document was closed meanwhile, or is being sent already
    };

    /// The document outlives this object.
    explicit ProjectSender(MyDocument &document);
    /// Closes first.
    ~ProjectSender();
    ProjectSender(const ProjectSender &) = delete;
    ProjectSender &operator=(const ProjectSender &) = delete;

    /// The whole send, including the alert; one at a time. Blocks until the application has answered, which
    /// may take up to ten minutes, and the user has dismissed the alert. Any thread; on the main thread it
    /// blocks the window.
    Outcome sendToFCP();

    /// The same on a thread of its own. `ended`, which may be empty, is called on the main thread when it is
    /// done, unless the document is closed first. False when a send is running already or the document is
    /// being saved. Main thread.
    bool start(std::function<void(Outcome)> ended);
    /// Whether a send begun by start() is running. Main thread.
    bool isSending() const { return m_isSending; }

    /// Cancels a running send without an alert, and any later one. For a document that is being closed: also
    /// closes its gate to the main thread. Any thread.
    void close();

private:
    Outcome send();
    Outcome sendToFinalCutPro(const QString &path, bool isChanged);
    Outcome sendToPremierePro(const QString &path);
    QByteArray outputDocument(const QStringList &modifiedUUIDs);
    Result<TransientFile> writeProject(const QString &path);
    std::optional<QStringList> begin(const QString &label);
    void end(MyDocument::SendResult result);

    MyDocument &m_document;
    std::unique_ptr<EventCancel> m_cancel;
    std::atomic<bool> m_isClosed = false;
    std::thread m_thread;
    bool m_isSending = false; // main thread
};

} // namespace vantrell

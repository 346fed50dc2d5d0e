#pragma once

#include "document/widgets/NoticeBar.h"
#include "document/widgets/WindowPart.h"
#include "support/files/Result.h"

#include <optional>
#include <utility>

namespace vantrell
{

/// Sends the document of a window to its editing application, and exports the file of its changed sequences.
/// The window owns it. Main thread.
class WindowSending final : private WindowPart
{
public:
    explicit WindowSending(const WindowPart &part)
        : WindowPart(part)
    {
    }

    void sendToFCP();
    /// Replaces the progress sheet of a send by a notice; the send goes on.
    void hide();
    /// The document is gone and the send with it.
    void reset() { m_noticeBefore.reset(); }

    void exportChangedSequences();
    void exportChangedSequencesTo(const QString &path);

private:
    void writeChangedSequences(const QString &path);
    void sent();
    void exported(const QString &path, const Result<void> &written, bool isCancelled);

    std::optional<std::pair<QString, NoticeBar::Kind>> m_noticeBefore; ///< while the notice shows a send
};

} // namespace vantrell

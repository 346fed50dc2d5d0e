#pragma once

#include <QKeySequence>
#include <QString>

#include <optional>

namespace vantrell
{

class MyDocument;

/// Whether the document is a project of an editing application, which is sent instead of saved; false for
/// null.
bool isProject(const MyDocument *document);

/// Menu commands that are not always available.
enum class DocumentCommand { OpenFCPProject, Save, SaveAs, Revert, Send, ExportChangedSequences };

/// The state of a menu command.
struct CommandState {
    bool isVisible = true;
    bool isEnabled = true;
    QString title;                        ///< null: unchanged
    std::optional<QKeySequence> shortcut; ///< nothing: unchanged
};

/// The state of a command for the current document, which may be null. Main thread.
CommandState validateUserInterfaceItem(DocumentCommand command, const MyDocument *document,
                                       bool isFinalCutProRunning);

} // namespace vantrell

#pragma once

#include <QKeySequence>
#include <QString>

#include <optional>

namespace vantrell
{

class MyDocument;

/// Commands of the menus that are not always there.
enum class DocumentCommand { OpenFCPProject, Save, SaveAs, Revert, Send, ExportChangedSequences };

/// How a command stands in the menu.
struct CommandState {
    bool isVisible = true;
    bool isEnabled = true;
    QString title;                        ///< null: the command keeps its own
    std::optional<QKeySequence> shortcut; ///< nothing: the command keeps its own
};

/// The state of a command for the current document, null when there is none, and for a Final Cut Pro that
/// runs or does not. Main thread.
CommandState validateUserInterfaceItem(DocumentCommand command, const MyDocument *document,
                                       bool isFinalCutProRunning);

} // namespace vantrell

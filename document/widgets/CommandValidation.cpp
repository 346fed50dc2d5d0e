#include "document/widgets/CommandValidation.h"

#include "document/MyDocument.h"

#include <QCoreApplication>

namespace vantrell
{

namespace
{

CommandState sendState(const MyDocument *document, bool isProject)
{
    const bool toPremiere = document && document->isPremiereProject();
    CommandState state;
    state.isVisible = state.isEnabled = isProject;
    state.title = toPremiere ? QCoreApplication::translate("MainMenu", "Send to Premiere Pro")
                             : QCoreApplication::translate("MainMenu", "Send to Final Cut Pro");
    state.shortcut = isProject ? QKeySequence(QKeySequence::Save) : QKeySequence();
    return state;
}

} // namespace

CommandState validateUserInterfaceItem(DocumentCommand command, const MyDocument *document,
                                       bool isFinalCutProRunning)
{
    const bool isProject = document && (document->isFCPProject() || document->isPremiereProject());
    CommandState state;
    switch (command) {
    case DocumentCommand::OpenFCPProject:
        state.isEnabled = isFinalCutProRunning;
        break;
    case DocumentCommand::Save:
        state.shortcut = isProject ? QKeySequence() : QKeySequence(QKeySequence::Save);
        [[fallthrough]];
    case DocumentCommand::SaveAs:
    case DocumentCommand::Revert:
        state.isVisible = !isProject;
        state.isEnabled = document && !isProject;
        break;
    case DocumentCommand::Send:
        return sendState(document, isProject);
    case DocumentCommand::ExportChangedSequences:
        state.isEnabled = document && !document->modifiedSequenceUUIDs().value_or(QStringList()).isEmpty();
        break;
    }
    return state;
}

} // namespace vantrell

#include "document/widgets/CommandValidation.h"

#include "document/MyDocument.h"

#include <QCoreApplication>

namespace vantrell
{

namespace
{

CommandState sendState(const MyDocument *document)
{
    const bool isVisible = isProject(document);
    const bool toPremiere = document && document->isPremiereProject();
    CommandState state;
    state.isVisible = state.isEnabled = isVisible;
    state.title = toPremiere ? QCoreApplication::translate("MainMenu", "Send to Premiere Pro")
                             : QCoreApplication::translate("MainMenu", "Send to Final Cut Pro");
    state.shortcut = isVisible ? QKeySequence(QKeySequence::Save) : QKeySequence();
    return state;
}

} // namespace

bool isProject(const MyDocument *document)
{
    return document && (document->isFCPProject() || document->isPremiereProject());
}

CommandState validateUserInterfaceItem(DocumentCommand command, const MyDocument *document,
                                       bool isFinalCutProRunning)
{
    CommandState state;
    switch (command) {
    case DocumentCommand::OpenFCPProject:
        state.isEnabled = isFinalCutProRunning;
        break;
    case DocumentCommand::Save:
        state.shortcut = isProject(document) ? QKeySequence() : QKeySequence(QKeySequence::Save);
        [[fallthrough]];
    case DocumentCommand::SaveAs:
    case DocumentCommand::Revert:
        state.isVisible = !isProject(document);
        state.isEnabled = document && !isProject(document);
        break;
    case DocumentCommand::Send:
        return sendState(document);
    case DocumentCommand::ExportChangedSequences:
        state.isEnabled = document && !document->modifiedSequenceUUIDs().value_or(QStringList()).isEmpty();
        break;
    }
    return state;
}

} // namespace vantrell

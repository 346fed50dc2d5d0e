#include "support/widgets/CoreTexts.h"

#include <QtGlobal>

namespace vantrell
{

namespace
{

constexpr const char *messageTexts[] = {
    // Buttons
    QT_TRANSLATE_NOOP("Message", "OK"),
    QT_TRANSLATE_NOOP("Message", "Cancel"),
    QT_TRANSLATE_NOOP("Message", "Save"),
    QT_TRANSLATE_NOOP("Message", "Delete"),
    QT_TRANSLATE_NOOP("Message", "Remove"),
    QT_TRANSLATE_NOOP("Message", "Overwrite"),
    // Document
    QT_TRANSLATE_NOOP("Message", "Unable to load project"),
    QT_TRANSLATE_NOOP("Message", "Final Cut Pro 7 is not installed on this system."),
    QT_TRANSLATE_NOOP("Message", "Final Cut Pro gave no XML of the project."),
    QT_TRANSLATE_NOOP("Message", "An internal error ended the loading; the log tells more."),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" is damaged and was repaired while it was opened (%2)."),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" was not read whole."),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" is no editing project: %2. Nothing in it can be shown."),
    QT_TRANSLATE_NOOP("Message",
                      "its element \"%1\" is in the namespace \"%2\", while those of a project are in none"),
    QT_TRANSLATE_NOOP(
        "Message",
        "its root element \"%1\" is in the namespace \"%2\", while those of a project are in none"),
    QT_TRANSLATE_NOOP("Message", "its root element is \"%1\" instead of \"xmeml\""),
    QT_TRANSLATE_NOOP("Message", "Not all that the project holds could be listed; the log tells why."),
    QT_TRANSLATE_NOOP("Message", "The project could not be written."),
    QT_TRANSLATE_NOOP("Message", "The project is being saved already."),
    QT_TRANSLATE_NOOP("Message", "The project is being sent already."),
    QT_TRANSLATE_NOOP("Message", "The project is sent to Final Cut Pro instead of being saved."),
    QT_TRANSLATE_NOOP("Message", "There is no project to save."),
    QT_TRANSLATE_NOOP("Message", "The repaired file was not overwritten."),
    QT_TRANSLATE_NOOP("Message", "Saving was cancelled."),
    QT_TRANSLATE_NOOP("Message",
                      "The file was changed by another program since it was opened. It was not overwritten."),
    QT_TRANSLATE_NOOP(
        "Message",
        "The project is being saved or sent and was left as it is. Please try again when that is over."),
    QT_TRANSLATE_NOOP("Message", "This file was repaired when it was opened"),
    QT_TRANSLATE_NOOP("Message",
                      "Saving replaces the damaged file with the repaired project. Do you want to save it?"),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" was changed by another program since it was opened"),
    QT_TRANSLATE_NOOP(
        "Message", "Overwriting the file loses what the other program saved. Do you want to overwrite it?"),
    // What is missing from a damaged file
    QT_TRANSLATE_NOOP("Message", "Content is missing: %1, and %2 left out behind that."),
    QT_TRANSLATE_NOOP(
        "Message", "Content is missing: %1 in a comment or instruction that does not end where it should."),
    // NOLINTNEXTLINE(bugprone-suspicious-missing-comma): one text on two lines
    QT_TRANSLATE_NOOP("Message", "Content is missing from its place: the tags do not match, so elements near "
                                 "or behind line %1 may be outside of those that they belong to."),
    QT_TRANSLATE_NOOP(
        "Message", "Content is missing: \"&\" or \"<\" is no reference or tag in %1, the first on line %2."),
    QT_TRANSLATE_NOOP("Message", "Content is missing: %1, and what follows is no part of the project."),
    QT_TRANSLATE_NOOP("Message",
                      "Content is missing: the entities that the document type declares are not kept."),
    QT_TRANSLATE_NOOP("Message", "Content is missing: %1, but the file ends in the middle of an element."),
    QT_TRANSLATE_NOOP("Message", "Content is missing: %1."),
    QT_TRANSLATE_NOOP("Message", "all %1 bytes could be read"),
    QT_TRANSLATE_NOOP("Message", "%1 of %2 bytes could be read"),
    QT_TRANSLATE_NOOP("Message", "1 element was"),
    QT_TRANSLATE_NOOP("Message", "%1 elements were"),
    QT_TRANSLATE_NOOP("Message", "1 element is"),
    QT_TRANSLATE_NOOP("Message", "%1 elements are"),
    QT_TRANSLATE_NOOP("Message", "1 place"),
    QT_TRANSLATE_NOOP("Message", "%1 places"),
    // Reading XML
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" cannot be opened as a project: %2"),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" is no media hash list: %2"),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" does not exist."),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" cannot be opened: %2."),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" cannot be read: %2."),
    QT_TRANSLATE_NOOP("Message", "\"%1\" is a folder, not a project file."),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" is empty."),
    QT_TRANSLATE_NOOP("Message", "there is not enough memory to read it."),
    QT_TRANSLATE_NOOP("Message", "There is not enough memory to read it."),
    QT_TRANSLATE_NOOP("Message", "nothing in it can be read"),
    QT_TRANSLATE_NOOP("Message", "loading was cancelled."),
    QT_TRANSLATE_NOOP("Message", "reading it failed before its end."),
    QT_TRANSLATE_NOOP("Message", "its elements are nested more than %1 deep."),
    QT_TRANSLATE_NOOP("Message", "its document type lists more values than can be read."),
    QT_TRANSLATE_NOOP("Message", "a comment in it has more double hyphens than can be read."),
    QT_TRANSLATE_NOOP("Message", "it is not well-formed XML (%1)."),
    QT_TRANSLATE_NOOP("Message", "it holds no XML root element (%1)."),
    QT_TRANSLATE_NOOP("Message", "There is not enough memory."),
    QT_TRANSLATE_NOOP("Message", "The text is no XML element."),
    // Files and programs
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" could not be written: %2."),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" could not be read: %2."),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" could not be read. %2"),
    QT_TRANSLATE_NOOP("Message", "The folder \"%1\" could not be made."),
    QT_TRANSLATE_NOOP("Message", "Writing was cancelled."),
    QT_TRANSLATE_NOOP("Message", "unknown error"),
    QT_TRANSLATE_NOOP("Message", "The property list is damaged: %1."),
    QT_TRANSLATE_NOOP("Message", "The property list nests more than %1 levels."),
    QT_TRANSLATE_NOOP("Message", "The property list could not be written."),
    QT_TRANSLATE_NOOP("Message", "%1 could not be started: %2"),
    QT_TRANSLATE_NOOP("Message", "%1 could not be started: too many open files"),
    QT_TRANSLATE_NOOP("Message", "%1 was given up."),
    QT_TRANSLATE_NOOP("Message", "%1 did not finish within %2 seconds."),
    QT_TRANSLATE_NOOP("Message", "%1 ended unexpectedly."),
    QT_TRANSLATE_NOOP("Message", "A temporary file could not be written: %1."),
    // What systems and Qt say
    QT_TRANSLATE_NOOP("Message", "No such file or directory"),
    QT_TRANSLATE_NOOP("Message", "Permission denied"),
    QT_TRANSLATE_NOOP("Message", "Operation not permitted"),
    QT_TRANSLATE_NOOP("Message", "No space left on device"),
    QT_TRANSLATE_NOOP("Message", "Read-only file system"),
    QT_TRANSLATE_NOOP("Message", "Input/output error"),
    QT_TRANSLATE_NOOP("Message", "Is a directory"),
    QT_TRANSLATE_NOOP("Message", "Not a directory"),
    QT_TRANSLATE_NOOP("Message", "File exists"),
    QT_TRANSLATE_NOOP("Message", "File name too long"),
    QT_TRANSLATE_NOOP("Message", "Too many open files"),
    QT_TRANSLATE_NOOP("Message", "Too many levels of symbolic links"),
    QT_TRANSLATE_NOOP("Message", "Disk quota exceeded"),
    QT_TRANSLATE_NOOP("Message", "File too large"),
    QT_TRANSLATE_NOOP("Message", "Device or resource busy"),
    QT_TRANSLATE_NOOP("Message", "Connection refused"),
    QT_TRANSLATE_NOOP("Message", "Unknown error"),
    // Markers
    QT_TRANSLATE_NOOP("Message", "Unable to add marker"),
    QT_TRANSLATE_NOOP("Message", "You need at least one sequence in your project in order to add a marker."),
    QT_TRANSLATE_NOOP("Message", "Unable to create marker"),
    QT_TRANSLATE_NOOP("Message", "Unable to remove marker"),
    QT_TRANSLATE_NOOP("Message", "Unable to change setting"),
    QT_TRANSLATE_NOOP("Message", "XML document cannot be found."),
    QT_TRANSLATE_NOOP("Message", "It was removed from the project."),
    QT_TRANSLATE_NOOP("Message", "An internal error occurred; the log tells more."),
    QT_TRANSLATE_NOOP("Message", "Are you sure you wish to remove this marker?"),
    QT_TRANSLATE_NOOP("Message", "Are you sure you wish to remove these markers?"),
    QT_TRANSLATE_NOOP("Message", "The name or comment holds XML markup."),
    QT_TRANSLATE_NOOP("Message",
                      "The title \"%1\" would give the identifier %2, which the field \"%3\" has."),
    QT_TRANSLATE_NOOP("Message", "The field \"%1\" has the identifier %2 already."),
    QT_TRANSLATE_NOOP("Message", "%1 of %2 markers is listed under another sequence or clip than their own."),
    QT_TRANSLATE_NOOP("Message",
                      "%1 of %2 markers are listed under another sequence or clip than their own."),
    // Presets
    QT_TRANSLATE_NOOP("Message", "No name specified"),
    QT_TRANSLATE_NOOP("Message", "Please choose a name for this preset."),
    QT_TRANSLATE_NOOP("Message", "Unable to create preset"),
    QT_TRANSLATE_NOOP("Message", "Unable to delete preset"),
    QT_TRANSLATE_NOOP("Message", "Please ensure your permissions are correct for the directory %1"),
    QT_TRANSLATE_NOOP("Message", "The name \"%1\" contains a slash, which separates folders."),
    QT_TRANSLATE_NOOP("Message", "The name contains a character that the name of a file cannot contain."),
    QT_TRANSLATE_NOOP("Message", "A preset needs a name."),
    QT_TRANSLATE_NOOP("Message", "There are no presets."),
    QT_TRANSLATE_NOOP("Message", "There is a preset named \"%1\" already."),
    QT_TRANSLATE_NOOP("Message", "\"%1\" could not be renamed: %2."),
    QT_TRANSLATE_NOOP("Message", "Delete the preset \"%1\"?"),
    QT_TRANSLATE_NOOP("Message", "Its labels will be lost. Markers keep their colors."),
    QT_TRANSLATE_NOOP("Message", "This preset already exists"),
    QT_TRANSLATE_NOOP("Message", "Would you like to overwrite it?"),
    // Effects
    QT_TRANSLATE_NOOP("Message", "Unable to remove effect"),
    QT_TRANSLATE_NOOP("Message", "One of the effects was removed from the project."),
    QT_TRANSLATE_NOOP("Message", "%1 of the effects were removed from the project."),
    QT_TRANSLATE_NOOP("Message", "Are you sure you wish to remove this effect?"),
    QT_TRANSLATE_NOOP("Message", "Are you sure you wish to remove these effects?"),
    QT_TRANSLATE_NOOP("Message", "%1 item"),
    QT_TRANSLATE_NOOP("Message", "%1 items"),
    QT_TRANSLATE_NOOP("Message", "%1 item (%2 selected)"),
    QT_TRANSLATE_NOOP("Message", "%1 items (%2 selected)"),
    // Media
    QT_TRANSLATE_NOOP("Message", "Total size: %1"),
    QT_TRANSLATE_NOOP("Message", "Total number of files: %1"),
    QT_TRANSLATE_NOOP("Message", "Total size of filtered media: %1"),
    QT_TRANSLATE_NOOP("Message", "Number of filtered media files: %1"),
    QT_TRANSLATE_NOOP("Message", "Largest file: Unknown"),
    QT_TRANSLATE_NOOP("Message", "Smallest file: Unknown"),
    QT_TRANSLATE_NOOP("Message", "Largest file: %1 (%2)"),
    QT_TRANSLATE_NOOP("Message", "Smallest file: %1 (%2)"),
    QT_TRANSLATE_NOOP("Message", "“%1” is on a volume that does not answer. Check its connection"),
    QT_TRANSLATE_NOOP("Message", "“%1” is missing from “%2”. Media ▸ Relink… finds it in other folders"),
    QT_TRANSLATE_NOOP("Message", "No file is selected. Click its row first"),
    QT_TRANSLATE_NOOP("Message", "There is no file browser that could show the file"),
    QT_TRANSLATE_NOOP("Message", "There is no program that could open the file. The system’s settings tell "
                                 "which program opens files of its kind"),
    QT_TRANSLATE_NOOP(
        "Message",
        "The project names no valid place for this file. Connect it again in the editing application"),
    // Handing over
    QT_TRANSLATE_NOOP("Message", "The media files cannot be relinked now."),
    QT_TRANSLATE_NOOP("Message", "The name \"%1\" cannot stand in an XML file."),
    QT_TRANSLATE_NOOP("Message", "The file \"%1\" is no media hash list."),
    QT_TRANSLATE_NOOP("Message", "%1 of %2, %3 files read"),
    QT_TRANSLATE_NOOP("Message", "%1 of %2, %3 files read, %4:%5:%6 left"),
    // Lists of markers and notes
    QT_TRANSLATE_NOOP("Message", "Error saving marker list"),
    QT_TRANSLATE_NOOP("Message",
                      "1 row holds a tab or a line break; other systems will not be able to read it"),
    QT_TRANSLATE_NOOP("Message",
                      "%1 rows hold a tab or a line break; other systems will not be able to read them"),
    QT_TRANSLATE_NOOP("Message", "No markers to import"),
    QT_TRANSLATE_NOOP("Message", "There were no markers in the file or it is an invalid format."),
    QT_TRANSLATE_NOOP("Message", "There is not enough memory to read the markers of the file."),
    QT_TRANSLATE_NOOP("Message", "There is not enough memory to read the list."),
    QT_TRANSLATE_NOOP("Message", "%1 of %2 rows could not be added"),
    QT_TRANSLATE_NOOP("Message", "line %1, “%2”: %3"),
    QT_TRANSLATE_NOOP("Message", "marker %1, “%2”: %3"),
    QT_TRANSLATE_NOOP("Message", "%1, line %2, “%3”: %4"),
    QT_TRANSLATE_NOOP("Message", "%1, marker %2, “%3”: %4"),
    QT_TRANSLATE_NOOP("Message", "line %1: %2"),
    QT_TRANSLATE_NOOP("Message", "%1, line %2: %3"),
    QT_TRANSLATE_NOOP("Message", "The line has %1 fields instead of %2."),
    QT_TRANSLATE_NOOP("Message", "… and %1 more"),
    QT_TRANSLATE_NOOP("Message", "There is no sequence to add it to."),
    QT_TRANSLATE_NOOP("Message", "Markers are still loading"),
    QT_TRANSLATE_NOOP("Message",
                      "Please wait for markers to finish loading before attempting this operation."),
    QT_TRANSLATE_NOOP("Message", "The file is not a text."),
    QT_TRANSLATE_NOOP("Message", "The JSON is damaged: %1."),
    QT_TRANSLATE_NOOP("Message", "There is no time."),
    QT_TRANSLATE_NOOP("Message", "Column %1"),
    QT_TRANSLATE_NOOP("Message", "“%1” is no time."),
    QT_TRANSLATE_NOOP("Message", "There are %1 fields instead of five to eight."),
    QT_TRANSLATE_NOOP("Message", "%1 frames a second have no “%2”."),
    QT_TRANSLATE_NOOP("Message", "A bar was replaced by a slash in %1."),
    QT_TRANSLATE_NOOP("Message", "Times are cut to whole seconds."),
    QT_TRANSLATE_NOOP("Message", "The duration of %1 is left out."),
    QT_TRANSLATE_NOOP("Message", "The colour of %1 is replaced by the nearest."),
    QT_TRANSLATE_NOOP("Message", "Tabs and line breaks are blanks in %1."),
    QT_TRANSLATE_NOOP("Message", "The comment of %1 is left out."),
    QT_TRANSLATE_NOOP("Message", "The custom fields of %1 are left out."),
    QT_TRANSLATE_NOOP("Message", "Colours are left out."),
    QT_TRANSLATE_NOOP("Message", "The timecodes of several frame rates stand in one list."),
    QT_TRANSLATE_NOOP("Message", "Markers of %1 sequences and clips stand in one list."),
    QT_TRANSLATE_NOOP("Message", "1 marker"),
    QT_TRANSLATE_NOOP("Message", "%1 markers"),
    QT_TRANSLATE_NOOP("Message", "1 text"),
    QT_TRANSLATE_NOOP("Message", "%1 texts"),
    // Sending
    QT_TRANSLATE_NOOP("Message", "Sending to Final Cut Pro..."),
    QT_TRANSLATE_NOOP("Message", "Sending to Premiere Pro..."),
    QT_TRANSLATE_NOOP("Message", "No changes to send to Final Cut Pro"),
    QT_TRANSLATE_NOOP(
        "Message",
        "Vantrell only sends modified sequences to Final Cut Pro and no sequences have been changed yet."),
    QT_TRANSLATE_NOOP("Message", "Changes successfully sent to Final Cut Pro"),
    QT_TRANSLATE_NOOP("Message", "Sequences have been duplicated and placed inside the Vantrell bin."),
    QT_TRANSLATE_NOOP("Message", "Unable to send to Final Cut Pro"),
    QT_TRANSLATE_NOOP("Message", "Unable to send to Premiere Pro"),
    QT_TRANSLATE_NOOP("Message", "An error occurred while sending data."),
    QT_TRANSLATE_NOOP("Message", "Project successfully sent to Premiere Pro"),
    QT_TRANSLATE_NOOP("Message", "A duplicate project has been created."),
    QT_TRANSLATE_NOOP("Message", "There is no project to send."),
    QT_TRANSLATE_NOOP("Message", "Premiere Pro now configured"),
    QT_TRANSLATE_NOOP(
        "Message", "Please close and relaunch Adobe Premiere Pro in order to use it with this application."),
    QT_TRANSLATE_NOOP("Message", "Critical error: unable to load FCP project loader dialog."),
    QT_TRANSLATE_NOOP("Message", "You must reinstall the application."),
    QT_TRANSLATE_NOOP("Message", "Error: unable to load About dialog."),
    QT_TRANSLATE_NOOP("Message", "Please report this error to Orvandel."),
    // Reports
    QT_TRANSLATE_NOOP("Message", "There are no rows to report."),
    QT_TRANSLATE_NOOP("Message", "A PDF needs the package \"vantrell-print\", which is not installed."),
    QT_TRANSLATE_NOOP("Message", "The PDF could not be made."),
    QT_TRANSLATE_NOOP("Message", "The PDF could not be written: %1."),
    QT_TRANSLATE_NOOP("Message", "The pages could not be put together: %1."),
    QT_TRANSLATE_NOOP("Message", "The report could not be loaded."),
    QT_TRANSLATE_NOOP("Message", "The web engine ended too soon."),
    QT_TRANSLATE_NOOP("Message", "The web engine made no pages of the report."),
};

constexpr const char *columnTexts[] = {
    QT_TRANSLATE_NOOP("Column", "Name"),        QT_TRANSLATE_NOOP("Column", "Kind"),
    QT_TRANSLATE_NOOP("Column", "Size"),        QT_TRANSLATE_NOOP("Column", "Date Modified"),
    QT_TRANSLATE_NOOP("Column", "Usage"),       QT_TRANSLATE_NOOP("Column", "Missing"),
    QT_TRANSLATE_NOOP("Column", "Folder"),      QT_TRANSLATE_NOOP("Column", "Source Timecode"),
    QT_TRANSLATE_NOOP("Column", "Reel"),        QT_TRANSLATE_NOOP("Column", "Length"),
    QT_TRANSLATE_NOOP("Column", "Used"),        QT_TRANSLATE_NOOP("Column", "Uses"),
    QT_TRANSLATE_NOOP("Column", "Sequences"),   QT_TRANSLATE_NOOP("Column", "Notes"),
    QT_TRANSLATE_NOOP("Column", "Enabled"),     QT_TRANSLATE_NOOP("Column", "Type"),
    QT_TRANSLATE_NOOP("Column", "Media"),       QT_TRANSLATE_NOOP("Column", "Clip"),
    QT_TRANSLATE_NOOP("Column", "Sequence"),    QT_TRANSLATE_NOOP("Column", "Color"),
    QT_TRANSLATE_NOOP("Column", "Comment"),     QT_TRANSLATE_NOOP("Column", "In"),
    QT_TRANSLATE_NOOP("Column", "Duration"),    QT_TRANSLATE_NOOP("Column", "Chapter"),
    QT_TRANSLATE_NOOP("Column", "Compression"), QT_TRANSLATE_NOOP("Column", "Scoring"),
};

constexpr const char *valueTexts[] = {
    // Kinds of files
    QT_TRANSLATE_NOOP("Value", "Movie Clip"),
    QT_TRANSLATE_NOOP("Value", "Audio Clip"),
    QT_TRANSLATE_NOOP("Value", "Image"),
    QT_TRANSLATE_NOOP("Value", "Unknown"),
    // Effects
    QT_TRANSLATE_NOOP("Value", "Filter"),
    QT_TRANSLATE_NOOP("Value", "Generator"),
    QT_TRANSLATE_NOOP("Value", "Transition"),
    QT_TRANSLATE_NOOP("Value", "Video"),
    QT_TRANSLATE_NOOP("Value", "Audio"),
    // Colors of markers
    QT_TRANSLATE_NOOP("Value", "Red"),
    QT_TRANSLATE_NOOP("Value", "Orange"),
    QT_TRANSLATE_NOOP("Value", "Yellow"),
    QT_TRANSLATE_NOOP("Value", "Green"),
    QT_TRANSLATE_NOOP("Value", "Turquoise"),
    QT_TRANSLATE_NOOP("Value", "Blue"),
    QT_TRANSLATE_NOOP("Value", "Purple"),
    QT_TRANSLATE_NOOP("Value", "Pink"),
    // What stands for a name
    QT_TRANSLATE_NOOP("Value", "(none)"),
    QT_TRANSLATE_NOOP("Value", "None"),
    QT_TRANSLATE_NOOP("Value", "Create preset..."),
    QT_TRANSLATE_NOOP("Value", "Gap"),
    // Files used
    QT_TRANSLATE_NOOP("Value", "unused"),
    QT_TRANSLATE_NOOP("Value", "duplicate"),
    QT_TRANSLATE_NOOP("Value", "still"),
    QT_TRANSLATE_NOOP("Value", "%1 frames"),
    QT_TRANSLATE_NOOP("Value", "%1 frames (%2 %)"),
    // Matches of file names
    QT_TRANSLATE_NOOP("Value", "same name"),
    QT_TRANSLATE_NOOP("Value", "other Unicode form"),
    QT_TRANSLATE_NOOP("Value", "other case"),
    QT_TRANSLATE_NOOP("Value", "other escapes"),
    QT_TRANSLATE_NOOP("Value", "other duration"),
    QT_TRANSLATE_NOOP("Value", "other timecode"),
    QT_TRANSLATE_NOOP("Value", "other reel"),
    QT_TRANSLATE_NOOP("Value", "other rate"),
    // What has become of a marker or an event
    QT_TRANSLATE_NOOP("Value", "there"),
    QT_TRANSLATE_NOOP("Value", "carried"),
    QT_TRANSLATE_NOOP("Value", "nearest"),
    QT_TRANSLATE_NOOP("Value", "gone"),
    QT_TRANSLATE_NOOP("Value", "Unchanged"),
    QT_TRANSLATE_NOOP("Value", "Replaced"),
    QT_TRANSLATE_NOOP("Value", "Speed"),
    QT_TRANSLATE_NOOP("Value", "Slipped"),
    QT_TRANSLATE_NOOP("Value", "Trimmed"),
    QT_TRANSLATE_NOOP("Value", "Track"),
    QT_TRANSLATE_NOOP("Value", "Moved"),
    QT_TRANSLATE_NOOP("Value", "Effects"),
    QT_TRANSLATE_NOOP("Value", "Added"),
    QT_TRANSLATE_NOOP("Value", "Removed"),
};

constexpr const char *unitTexts[] = {
    QT_TRANSLATE_NOOP("Unit", "B"),
    QT_TRANSLATE_NOOP("Unit", "KB"),
    QT_TRANSLATE_NOOP("Unit", "MB"),
    QT_TRANSLATE_NOOP("Unit", "GB"),
};

constexpr const char *editTexts[] = {
    QT_TRANSLATE_NOOP("Edit", "Rename Marker"),
    QT_TRANSLATE_NOOP("Edit", "Rename Markers"),
    QT_TRANSLATE_NOOP("Edit", "Change Comment"),
    QT_TRANSLATE_NOOP("Edit", "Change Comments"),
    QT_TRANSLATE_NOOP("Edit", "Change Color"),
    QT_TRANSLATE_NOOP("Edit", "Change Colors"),
    QT_TRANSLATE_NOOP("Edit", "Change In Point"),
    QT_TRANSLATE_NOOP("Edit", "Change In Points"),
    QT_TRANSLATE_NOOP("Edit", "Change Duration"),
    QT_TRANSLATE_NOOP("Edit", "Change Durations"),
    QT_TRANSLATE_NOOP("Edit", "Change Chapter Flag"),
    QT_TRANSLATE_NOOP("Edit", "Change Chapter Flags"),
    QT_TRANSLATE_NOOP("Edit", "Change Compression Flag"),
    QT_TRANSLATE_NOOP("Edit", "Change Compression Flags"),
    QT_TRANSLATE_NOOP("Edit", "Change Scoring Flag"),
    QT_TRANSLATE_NOOP("Edit", "Change Scoring Flags"),
    QT_TRANSLATE_NOOP("Edit", "Change Marker Field"),
    QT_TRANSLATE_NOOP("Edit", "Change Marker Fields"),
    QT_TRANSLATE_NOOP("Edit", "Move Marker to Sequence"),
    QT_TRANSLATE_NOOP("Edit", "Move Marker to Clip"),
    QT_TRANSLATE_NOOP("Edit", "Add Marker"),
    QT_TRANSLATE_NOOP("Edit", "Duplicate Marker"),
    QT_TRANSLATE_NOOP("Edit", "Duplicate Markers"),
    QT_TRANSLATE_NOOP("Edit", "Move Marker"),
    QT_TRANSLATE_NOOP("Edit", "Move Markers"),
    QT_TRANSLATE_NOOP("Edit", "Import Markers"),
    QT_TRANSLATE_NOOP("Edit", "Remove Marker"),
    QT_TRANSLATE_NOOP("Edit", "Remove Markers"),
    QT_TRANSLATE_NOOP("Edit", "Offset Marker"),
    QT_TRANSLATE_NOOP("Edit", "Offset Markers"),
    QT_TRANSLATE_NOOP("Edit", "Carry Markers"),
    QT_TRANSLATE_NOOP("Edit", "Relink"),
    QT_TRANSLATE_NOOP("Edit", "Change Effect"),
    QT_TRANSLATE_NOOP("Edit", "Change Effects"),
    QT_TRANSLATE_NOOP("Edit", "Switch On Effect"),
    QT_TRANSLATE_NOOP("Edit", "Switch On Effects"),
    QT_TRANSLATE_NOOP("Edit", "Switch Off Effect"),
    QT_TRANSLATE_NOOP("Edit", "Switch Off Effects"),
    QT_TRANSLATE_NOOP("Edit", "Remove Effect"),
    QT_TRANSLATE_NOOP("Edit", "Remove Effects"),
    QT_TRANSLATE_NOOP("Edit", "Undo %1"),
};

constexpr const char *differenceTexts[] = {
    QT_TRANSLATE_NOOP("Difference", "head %1"),     QT_TRANSLATE_NOOP("Difference", "tail %1"),
    QT_TRANSLATE_NOOP("Difference", "switched on"), QT_TRANSLATE_NOOP("Difference", "switched off"),
    QT_TRANSLATE_NOOP("Difference", "%1 on"),       QT_TRANSLATE_NOOP("Difference", "%1 off"),
    QT_TRANSLATE_NOOP("Difference", "was %1"),      QT_TRANSLATE_NOOP("Difference", "%1 to %2"),
    QT_TRANSLATE_NOOP("Difference", "variable"),
};

} // namespace

std::span<const char *const> CoreTexts::messages()
{
    return messageTexts;
}

std::span<const char *const> CoreTexts::columns()
{
    return columnTexts;
}

std::span<const char *const> CoreTexts::values()
{
    return valueTexts;
}

std::span<const char *const> CoreTexts::units()
{
    return unitTexts;
}

std::span<const char *const> CoreTexts::edits()
{
    return editTexts;
}

std::span<const char *const> CoreTexts::differences()
{
    return differenceTexts;
}

} // namespace vantrell

#pragma once

#include "interchange/NoteRoleMemory.h"
#include "interchange/notes/NoteList.h"
#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace vantrell
{

/// A list of notes that was opened, with what is needed to read it again with other roles. Any thread; what
/// is shared is never changed.
struct NoteSource {
    QString path; ///< null for a text that was pasted
    QByteArray bytes;
    NoteColumnChoices choices; ///< that it was read with: those remembered for its header
    std::shared_ptr<const NoteList> list;

    /// The failure tells why the file cannot be read.
    static Result<NoteSource> ofFile(const QString &path, const NoteRoleMemory &memory);
    static Result<NoteSource> ofText(const QString &text, const NoteRoleMemory &memory);

    /// The name of the file; null without one.
    QString name() const;
    /// Whether there is a note, or in a file a line that might become one with other roles.
    bool isUsable() const;
};

/// Whether a file that the user drops is a list rather than a project: text other than a project, and with
/// a name that ends in ".xml" only what is known to be a list. Looks at the beginning of the file. Any
/// thread.
bool isNoteFile(const QString &path);

} // namespace vantrell

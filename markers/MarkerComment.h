#pragma once

#include "rows/RowRecord.h"

#include <QString>

namespace vantrell
{

/// The flags and custom fields that a marker carries as tags in its comment. A record belongs to one
/// thread at a time; otherwise any thread.
namespace MarkerComment
{

/// Whether an edit of the key is written into the comment.
bool isKeptInComment(const QString &key);

/// Takes the tags out of a comment: sets the record's flags, the first custom field and, last, the
/// comment that remains. Of several custom fields the later ones stay in the text, as does a tag that
/// is not whole.
void read(const QString &comment, RowRecord &record);

/// The comment text to write for an edit of a key that isKeptInComment(). Flags and custom fields get
/// their new value in the record; the comment itself does not.
QString textForEdit(RowRecord &record, const QString &key, const QString &value);

} // namespace MarkerComment
} // namespace vantrell

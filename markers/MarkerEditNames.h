#pragma once

#include <QString>

#include <cstddef>

namespace vantrell
{

/// What edits of markers are called in the Undo and Redo commands. Any thread.
namespace MarkerEditNames
{

/// An edit of a column's cells of so many markers.
QString ofColumn(const QString &column, std::size_t count);
QString ofAdding();
QString ofDuplicating(std::size_t count);
QString ofMoving(std::size_t count);
QString ofImport();
QString ofRemoving(std::size_t count);
QString ofOffset(std::size_t count);

} // namespace MarkerEditNames
} // namespace vantrell

#pragma once

#include <QString>

#include <array>
#include <cstddef>

namespace vantrell
{

class ChangeMarks;
class EditHistory;
class MyDocument;

/// What differs between a project and its file, in numbers. Main thread.
struct UnsavedChanges {
    std::size_t changes = 0;           ///< steps
    std::array<std::size_t, 3> rows{}; ///< that they concern, by tab
    std::size_t sequences = 0;         ///< that they concern
    bool isKnown = true;               ///< whether the steps lead from the file to the project

    static UnsavedChanges of(MyDocument &document);

    /// Such as "12 changes to 340 markers and 2 effects in 3 sequences"; null when they are not known.
    QString text() const;
};

/// The number of changes alone: at least 1 while there are any.
std::size_t countUnsavedChanges(const EditHistory &history, const ChangeMarks &marks);

} // namespace vantrell

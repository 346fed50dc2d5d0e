#pragma once

#include "support/files/Result.h"

#include <QString>

namespace vantrell
{

/// A file that is there for a while: made under a name of its own and removed with this object, also when
/// a signal ends the process before (see UnfinishedFiles). Moved, never copied.
class TransientFile
{
public:
    /// Makes an empty file under FileUtilities::uniqueFilePath().
    static Result<TransientFile> make(const QString &path);
    // A string is empty once it was moved from.
    TransientFile(TransientFile &&other) noexcept = default;
    TransientFile &operator=(TransientFile &&other) noexcept = default;
    ~TransientFile();

    const QString &path() const { return m_path; }

    /// Removes it now; a Failure says why that is not possible.
    Result<void> remove();

private:
    explicit TransientFile(const QString &path);

    QString m_path; ///< empty when it is gone
};

} // namespace vantrell

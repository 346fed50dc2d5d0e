#pragma once

#include "handover/Checksums.h"

#include <QFile>
#include <QHash>
#include <QString>

namespace vantrell
{

/// The checksums made so far for a list that is being written, in the user's library folder: what a run that
/// was cancelled or interrupted has done is taken over by the next one. Without a place to write to it does
/// nothing. One thread.
class ChecksumJournal
{
public:
    /// Reads what an earlier run for the list at that absolute path has left.
    explicit ChecksumJournal(const QString &listPath);

    /// The checksums of a file that has that size and date (see FileFacts) still; nothing without any.
    std::optional<ChecksumResult> find(const QByteArray &path, std::int64_t size,
                                       std::int64_t modified) const;

    /// Keeps a result that is done.
    void add(const QByteArray &path, const ChecksumResult &result);

    /// The list is written: nothing is kept any more.
    void remove();

private:
    QFile m_file;
    QHash<QByteArray, ChecksumResult> m_known;
};

} // namespace vantrell

#pragma once

#include <QByteArray>
#include <QTemporaryFile>

namespace vantrell
{

/// Takes what the process writes to standard error while it lives, on whatever thread. One at a time.
class CapturedStandardError
{
public:
    CapturedStandardError();
    CapturedStandardError(const CapturedStandardError &) = delete;
    CapturedStandardError &operator=(const CapturedStandardError &) = delete;
    ~CapturedStandardError();

    /// What has been written so far.
    QByteArray text();

private:
    QTemporaryFile m_file;
    int m_original = -1;
};

} // namespace vantrell

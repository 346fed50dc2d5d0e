#pragma once

#include <QByteArray>
#include <QTemporaryFile>

namespace vantrell
{

/// Captures what the process writes to standard error, on any thread, during its lifetime. One at a time.
class CapturedStandardError
{
public:
    CapturedStandardError();
    CapturedStandardError(const CapturedStandardError &) = delete;
    CapturedStandardError &operator=(const CapturedStandardError &) = delete;
    ~CapturedStandardError();

    /// The text written so far.
    QByteArray text();

private:
    QTemporaryFile m_file;
    int m_original = -1;
};

} // namespace vantrell

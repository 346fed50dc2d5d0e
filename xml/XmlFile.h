#pragma once

#include "support/files/Descriptor.h"
#include "support/files/Result.h"

#include <QString>

#include <atomic>
#include <memory>

namespace vantrell
{

/// A file opened for one sequential read of the size that it had then: bytes that another program appends are
/// ignored; a file that shrinks ends early.
class XmlFile
{
public:
    /// The failure says why the file cannot be read as a project. Setting `cancelled` (may be null) ends the
    /// wait for a pipe.
    static Result<std::shared_ptr<XmlFile>> open(const QString &path, const std::atomic<bool> *cancelled);

    /// Up to \a length bytes; 0 at the end, -1 on a failed read.
    int read(char *buffer, int length);

    /// Bytes when it was opened; -1 without a size, as for a pipe.
    long long size() const { return m_size; }

private:
    XmlFile() = default;
    bool waitForData() const;

    const std::atomic<bool> *m_cancelled = nullptr;
    Descriptor m_descriptor;
    long long m_size = -1;
    long long m_remaining = -1; ///< bytes; -1 without a size, as for a pipe
};

} // namespace vantrell

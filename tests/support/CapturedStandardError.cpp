#include "CapturedStandardError.h"

#include <QFile>

#include <cstdio>
#include <unistd.h>

namespace vantrell
{

CapturedStandardError::CapturedStandardError()
{
    std::fflush(stderr);
    m_original = ::dup(STDERR_FILENO);
    if (m_original < 0 || !m_file.open() || ::dup2(m_file.handle(), STDERR_FILENO) < 0)
        qFatal("Standard error could not be captured.");
}

CapturedStandardError::~CapturedStandardError()
{
    std::fflush(stderr);
    ::dup2(m_original, STDERR_FILENO);
    ::close(m_original);
}

QByteArray CapturedStandardError::text()
{
    std::fflush(stderr);
    QFile file(m_file.fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace vantrell

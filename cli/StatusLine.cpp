#include "cli/StatusLine.h"

#include <QByteArray>

#include <cstdio>
#include <unistd.h>

namespace vantrell::cli
{

namespace
{

constexpr qint64 interval = 200; // milliseconds

void write(const QByteArray &text)
{
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stderr);
    std::fflush(stderr);
}

} // namespace

StatusLine::StatusLine()
    : m_isTerminal(isatty(STDERR_FILENO) != 0)
{
}

void StatusLine::show(const QString &text)
{
    if (!m_isTerminal || (m_sinceShown.isValid() && m_sinceShown.elapsed() < interval))
        return;
    m_sinceShown.start();
    m_isShown = true;
    write("\r\033[K" + text.toUtf8());
}

void StatusLine::clear()
{
    if (m_isShown)
        write("\r\033[K");
    m_isShown = false;
}

} // namespace vantrell::cli

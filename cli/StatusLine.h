#pragma once

#include <QElapsedTimer>
#include <QString>

namespace vantrell::cli
{

/// One line on standard error that tells how far a long operation has come; nothing where that is no
/// terminal.
class StatusLine
{
public:
    StatusLine();

    /// Replaces the line, a few times a second at most.
    void show(const QString &text);
    void clear();

private:
    bool m_isTerminal;
    bool m_isShown = false;
    QElapsedTimer m_sinceShown;
};

} // namespace vantrell::cli

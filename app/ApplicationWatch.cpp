#include "app/ApplicationWatch.h"

#include "support/desktop/Workspace.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"

#include <QPointer>

namespace vantrell
{

ApplicationWatch::ApplicationWatch(const QString &bundleIdentifier)
    : m_bundleIdentifier(bundleIdentifier)
{
}

void ApplicationWatch::look()
{
    if (m_isLooking)
        return;
    m_isLooking = true;
    BackgroundWork::run([self = QPointer(this), identifier = m_bundleIdentifier] {
        const bool isRunning = Workspace::isRunning(identifier);
        MainThread::post([self, isRunning] {
            if (self)
                self->note(isRunning);
        });
    });
}

void ApplicationWatch::note(bool isRunning)
{
    m_isLooking = false;
    m_isRunning = isRunning;
    Q_EMIT looked();
}

} // namespace vantrell

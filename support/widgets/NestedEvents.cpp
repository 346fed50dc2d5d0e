#include "support/widgets/NestedEvents.h"

#include <QThread>
#include <QTimer>

#include <utility>

namespace vantrell
{

constexpr int RetryMs = 20;

bool NestedEvents::areRunning()
{
    return s_depth > 0 || QThread::currentThread()->loopLevel() > 1;
}

void NestedEvents::whenUnwound(QObject *context, std::function<void()> work)
{
    // Asked again after a while, not with the next event: a nested loop would go round and round with it.
    QTimer::singleShot(areRunning() ? RetryMs : 0, context, [context, work = std::move(work)]() mutable {
        if (areRunning())
            whenUnwound(context, std::move(work));
        else
            work();
    });
}

} // namespace vantrell

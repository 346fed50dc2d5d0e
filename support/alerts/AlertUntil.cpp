#include "support/alerts/AlertUntil.h"

#include "support/alerts/QVAlert.h"
#include "support/threads/MainThread.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds interval{20};

} // namespace

void showAlertUntil(const QString &messageText, const QString &informativeText, AlertParent *parentWindow,
                    const std::shared_ptr<MainThreadGate> &gate, const std::function<bool()> &isGivenUp)
{
    const auto givesUp = [&] { return (gate && gate->isClosed()) || (isGivenUp && isGivenUp()); };
    if (givesUp())
        return;
    if (MainThread::isMainThread()) {
        QVAlert::alertSheetWithMessageText(messageText, informativeText, parentWindow);
        return;
    }
    const auto alert = QVAlert::create();
    const auto wasGivenUp = std::make_shared<std::atomic<bool>>(false);
    const auto show = [=] {
        if (!*wasGivenUp)
            QVAlert::alertSheetWithMessageText(messageText, {}, {}, {}, informativeText, parentWindow,
                                               nullptr, {}, false, alert);
    };
    if (gate)
        gate->post(show);
    else
        MainThread::post(show);
    while (!alert->alertEnded()) {
        if (givesUp()) {
            *wasGivenUp = true;
            MainThread::post([alert] { alert->closeAlert(); });
            return;
        }
        std::this_thread::sleep_for(interval);
    }
}

} // namespace vantrell

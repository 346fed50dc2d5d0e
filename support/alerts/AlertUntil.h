#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace vantrell
{

class AlertParent;
class MainThreadGate;

/// Shows an alert with one button, as QVAlert does, and waits until it has been answered or `isGivenUp`,
/// asked now and then, holds. Unlike a worker that waits in QVAlert, one that waits here ends also while
/// the main thread waits for it in turn. The parent may be null. With a gate (null for none) the alert is
/// shown through it, and the wait ends when it closes. Any thread.
void showAlertUntil(const QString &messageText, const QString &informativeText, AlertParent *parentWindow,
                    const std::shared_ptr<MainThreadGate> &gate, const std::function<bool()> &isGivenUp = {});

} // namespace vantrell

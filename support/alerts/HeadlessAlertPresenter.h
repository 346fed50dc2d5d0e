#pragma once

#include "support/alerts/AlertPresenter.h"

namespace vantrell
{

/// Shows alerts where there is no window: as a line on standard error and in the log, answered at once.
/// Main thread only.
class HeadlessAlertPresenter final : public AlertPresenter
{
public:
    /// `assumeYes`: questions are answered with the button that goes ahead instead of being refused.
    explicit HeadlessAlertPresenter(bool assumeYes)
        : m_assumeYes(assumeYes)
    {
    }

    /// Writes "message: informative text", or the message alone when there is no informative text. An alert
    /// with one button is answered with 1. One with an alternate or other button is a question: its
    /// default button goes ahead and the alternate one refuses, or the other way round when the default
    /// button is "Cancel".
    AlertId begin(const AlertDescription &description, AlertParent *parent, Answer answered) override;

    void close(AlertId) override {}
    void closeAll(AlertParent *) override {}
    bool parentHasSheet(AlertParent *) override { return false; }
    void bringToFront(AlertParent *) override {}
    void dispatchOneEvent(std::chrono::milliseconds limit) override;

    /// Whether a question was refused so far.
    bool questionRefused() const { return m_questionRefused; }

private:
    bool m_assumeYes;
    bool m_questionRefused = false;
};

} // namespace vantrell

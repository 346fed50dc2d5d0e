#include "support/alerts/HeadlessAlertPresenter.h"

#include "support/log/QVLog.h"
#include "support/log/SystemLog.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <thread>

namespace vantrell
{

AlertPresenter::AlertId HeadlessAlertPresenter::begin(const AlertDescription &description, AlertParent *,
                                                      Answer answered)
{
    QString line = description.value(AlertKey::MessageText);
    const QString informativeText = description.value(AlertKey::InformativeText);
    if (!informativeText.isEmpty())
        line += QStringLiteral(": ") + informativeText;
    SystemLog::write(line);
    QVLog::appendLog(u"%@", line);

    const bool isQuestion = !description.value(AlertKey::AlternateButtonTitle).isEmpty() ||
                            !description.value(AlertKey::OtherButtonTitle).isEmpty();
    const bool isRefused = isQuestion && !m_assumeYes;
    m_questionRefused = m_questionRefused || isRefused;
    const bool cancelsByDefault =
        isQuestion && description.value(AlertKey::DefaultButtonTitle) == QStringLiteral("Cancel");
    answered(isRefused == cancelsByDefault ? AlertAnswer::Default : AlertAnswer::Alternate);
    return 1; // it is gone by now
}

void HeadlessAlertPresenter::dispatchOneEvent(std::chrono::milliseconds limit)
{
    if (QCoreApplication::instance())
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    std::this_thread::sleep_for(limit);
}

} // namespace vantrell

#pragma once

#include "WindowTest.h"

#include "app/AppController.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "tests/support/TemporaryHome.h"

#include <QPointer>
#include <QTest>

#include <chrono>
#include <memory>

namespace vantrell
{

/// What tests of the whole program have in common: an empty home, the user defaults in it, and the program
/// over them, anew for each test.
class ProgramTest
{
protected:
    void makeHome()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_defaults = std::make_unique<UserDefaults>(m_home->path(QStringLiteral("test.plist")));
    }

    /// The program as it is before it has finished launching.
    void makeProgram()
    {
        AppController::startLog();
        m_controller = std::make_unique<AppController>(*m_defaults);
    }

    /// The home and the program in it, which does not open a panel at its start.
    void makeQuietProgram()
    {
        makeHome();
        m_defaults->setValue(QStringLiteral("showOpenDialogAtStartup"), 0);
        makeProgram();
    }

    /// All that, with a copy of the sample project open in the window; false when that takes too long.
    bool openSample()
    {
        makeQuietProgram();
        m_controller->applicationDidFinishLaunching();
        m_controller->openFiles({copySample(m_home->path(QStringLiteral("project")))});
        m_window = m_controller->currentWindow();
        return QTest::qWaitFor([this] { return m_window->state() == DocumentWindow::State::Ready; }, 40000);
    }

    /// After each test; false when some work in the background does not end.
    bool end()
    {
        m_controller.reset();
        const bool hasEnded = BackgroundWork::waitForAll(std::chrono::seconds(20));
        QVLog::willTerminate();
        m_defaults.reset();
        m_home.reset();
        return hasEnded;
    }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<AppController> m_controller;
    QPointer<DocumentWindow> m_window;
};

} // namespace vantrell

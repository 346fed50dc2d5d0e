#pragma once

#include "bridge/EventCancel.h"

#include <QString>

#include <chrono>

namespace vantrell
{

/// Has Premiere Pro run a command: a script that carries it there is written to a file and run by the
/// ExtendScript Toolkit. Nothing comes back; what goes wrong is logged. Every operation blocks until the
/// Toolkit has ended or its time is up, and returns early once it is cancelled. Paths stand in the
/// commands as they are. Stateless but for the settings; any thread.
class QVPremiereEvents
{
public:
    QVPremiereEvents() = delete;

    /// Makes the empty file in each installed Premiere Pro's folder that tells it, at its next start, to
    /// take commands. An alert asks for that start when one runs and a file was made.
    static void createQeObject(const EventCancel &cancel = {});

    /// Runs one command, an ExtendScript expression. Starts Premiere Pro when it does not run and
    /// `shouldLaunch` is set.
    static void executeScript(const QString &command, bool shouldLaunch, const EventCancel &cancel = {});

    // Imports an xmeml file, exports the open project as one, opens a project.

    static void openFCPXML(const QString &path, bool shouldLaunch, const EventCancel &cancel = {});
    static void openFCPXML(const QString &path, const EventCancel &cancel = {});
    static void exportFCPXML(const QString &path, bool shouldLaunch, const EventCancel &cancel = {});
    static void exportFCPXML(const QString &path, const EventCancel &cancel = {});
    static void openProject(const QString &path, bool shouldLaunch, const EventCancel &cancel = {});
    static void openProject(const QString &path, const EventCancel &cancel = {});

    /// The script that carries a command to the Premiere Pro of that version, as in "6.0".
    static QString scriptText(const QString &command, const QString &targetVersion);

    /// How long things are waited for.
    struct Waits {
        std::chrono::milliseconds launch{3000};   ///< after starting Premiere Pro
        std::chrono::milliseconds script{30000};  ///< for the Toolkit's end
        std::chrono::microseconds ended{500};     ///< before the script is deleted
        std::chrono::milliseconds opened{1000};   ///< after a sent project's script has ended
        std::chrono::milliseconds exported{5000}; ///< after an export's script has ended
    };
    static Waits waits();
    static void setWaits(const Waits &waits);

    /// Sets the program that has the Toolkit run a script; empty: "/usr/bin/open".
    static void setOpenProgram(const QString &program);
};

} // namespace vantrell

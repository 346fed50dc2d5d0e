#pragma once

#include "bridge/EventCancel.h"

#include <QString>
#include <QStringList>

#include <chrono>

namespace vantrell
{

/// Has Premiere Pro run a command: the ExtendScript Toolkit runs a script file that forwards it. There is no
/// result; errors are logged. Every operation blocks until the Toolkit has ended or timed out, and returns
/// early when it is cancelled. Paths are inserted into the commands without escaping. Stateless except for
/// the settings; any thread.
class QVPremiereEvents
{
public:
    QVPremiereEvents() = delete;

    /// Creates the empty file in the folder of each installed Premiere Pro that enables scripting at its next
    /// start. If Premiere Pro is running and a file was created, an alert asks for a restart.
    static void createQeObject(const EventCancel &cancel = {});

    /// Runs one command, an ExtendScript expression. Launches Premiere Pro if it is not running and
    /// `shouldLaunch` is true.
    static void executeScript(const QString &command, bool shouldLaunch, const EventCancel &cancel = {});

    /// Imports an xmeml file.
    static void openFCPXML(const QString &path, bool shouldLaunch = true, const EventCancel &cancel = {});
    /// Exports the open project as xmeml.
    static void exportFCPXML(const QString &path, bool shouldLaunch = true, const EventCancel &cancel = {});
    static void openProject(const QString &path, bool shouldLaunch = true, const EventCancel &cancel = {});

    /// The script that forwards a command to the Premiere Pro of that version, such as "6.0".
    static QString scriptText(const QString &command, const QString &targetVersion);

    /// Durations of the waits.
    struct Waits {
        std::chrono::milliseconds launch{3000};   ///< after starting Premiere Pro
        std::chrono::milliseconds script{30000};  ///< for the Toolkit's end
        std::chrono::microseconds ended{500};     ///< before the script is deleted
        std::chrono::milliseconds opened{1000};   ///< after a sent project's script has ended
        std::chrono::milliseconds exported{5000}; ///< after an export's script has ended
    };
    static Waits waits();
    static void setWaits(const Waits &waits);

    /// Sets the program that opens a script with the Toolkit; empty for "/usr/bin/open".
    static void setOpenProgram(const QString &program);
};

/// Which versions of Premiere Pro are installed and running. Stateless; any thread.
class QVPremiere
{
public:
    QVPremiere() = delete;

    static QString bundleIdentifier() { return QStringLiteral("com.adobe.AdobePremierePro"); }

    /// The product versions of the installations in the applications folder, ordered by folder name;
    /// installations whose configuration has no version are left out.
    static QStringList premiereVersions();

    /// Major and minor version of the running Premiere Pro, such as "6.0"; null when none is running or its
    /// property list has no version.
    static QString runningPremiereVersion();

    /// The Creative Suite number of a version: the version without a trailing ".0".
    static QString creativeSuiteNumber(const QString &version);
};

} // namespace vantrell

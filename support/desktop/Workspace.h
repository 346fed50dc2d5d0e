#pragma once

#include <QString>

#include <vector>

namespace vantrell
{

/// Which applications are installed and running, and handing files to them. Applications are bundle
/// folders, known by their bundle identifiers. Stateless but for the program that opens files; any
/// thread. Nothing waits for another program for more than two seconds.
class Workspace
{
public:
    Workspace() = delete;

    /// An application that runs as this user.
    struct RunningApplication {
        QString bundleIdentifier;
        QString bundlePath;     ///< empty when it is known by its event socket and not installed here
        QString executablePath; ///< of the running process; empty when known by its event socket alone
        qint64 processId = 0;   ///< 0 when known by its event socket alone
    };

    /// The user default "applicationsFolder", else "/opt".
    static QString applicationsFolder();

    /// The user default "adminApplicationsFolder", else "/opt/Utilities".
    static QString adminApplicationsFolder();

    /// The bundle with that CFBundleIdentifier in the applications folder or a folder directly in it;
    /// the first by name, outer ones before inner ones. Empty when it is not installed.
    static QString applicationPathForBundleIdentifier(const QString &bundleIdentifier);

    /// Whether an executable of the application's bundle is a process of this user, or the application
    /// answers on its event socket.
    static bool isRunning(const QString &bundleIdentifier);

    /// One entry for each running application, in the order of the applications folder.
    static std::vector<RunningApplication> runningApplications();

    /// Where the application with that signature ("KeyG") receives events: a Unix-domain socket in
    /// $XDG_RUNTIME_DIR/vantrell. Empty without that variable.
    static QString eventSocketPath(const QString &signature);

    /// Shows the item selected in the file browser; where there is none that can, opens its folder. False
    /// when it does not exist or nothing could be started.
    static bool revealFile(const QString &path);

    /// Opens the file or folder with its default application, or starts the application when the path is a
    /// bundle's. Does not wait for it. False when it does not exist or nothing could be started.
    static bool openFile(const QString &path);

    /// Starts the installed application with the file, or without one when `path` is empty. Does not
    /// wait for it. False when it is not installed or cannot be started.
    static bool openWithApplication(const QString &bundleIdentifier, const QString &path);

    /// Sets the program that opens files with their default applications; empty: "xdg-open".
    static void setOpenProgram(const QString &program);
};

} // namespace vantrell

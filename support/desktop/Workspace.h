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

    /// An application that runs as this user. One that is known by its event socket alone has no path, no
    /// executable and the process id 0.
    struct RunningApplication {
        QString bundleIdentifier;
        QString bundlePath;
        QString executablePath; ///< of the running process
        qint64 processId = 0;
    };

    /// The user defaults "applicationsFolder", else "/opt", and "adminApplicationsFolder", else
    /// "/opt/Utilities".
    static QString applicationsFolder();
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

    // These do not wait for what they start. False when it does not exist, is not installed or cannot be
    // started.

    /// Shows the item selected in the file browser; where there is none that can, opens its folder.
    static bool revealFile(const QString &path);
    /// Opens the file or folder with its default application, or starts the application of a bundle's path.
    static bool openFile(const QString &path);
    /// Starts the installed application with the file, or without one when `path` is empty.
    static bool openWithApplication(const QString &bundleIdentifier, const QString &path);
    /// Sets the program that opens files with their default applications; empty: "xdg-open".
    static void setOpenProgram(const QString &program);
};

} // namespace vantrell

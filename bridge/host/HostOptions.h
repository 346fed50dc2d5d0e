#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace vantrell
{

/// What fcp-host was told on its command line.
struct HostOptions {
    QString version = QStringLiteral("7.0.3"); ///< of the application that is played
    QString socketFolder;                      ///< empty: that of Workspace::eventSocketPath()
    QStringList files;                         ///< projects that are open from the start
    QStringList closedFiles;                   ///< projects that are known and closed
    bool handsOver = false;                    ///< gives the files to a host that runs already
    QString logPath;                           ///< empty: none
    std::chrono::milliseconds delay{0};        ///< before each answer
    QString failingEvent;                      ///< identifier of the event that is refused; empty: none
    bool truncates = false;                    ///< replies are cut short
    QString bundleFolder;                      ///< where to write a bundle instead of running; empty: run

    /// Reads the command line. Nothing, and the exit status in \a status, when the program is to end: after
    /// the help or a message on standard error.
    static std::optional<HostOptions> read(int argc, char **argv, int &status);

    /// The options that a bundle's executable starts the host with, as arguments.
    QStringList bundleArguments() const;
};

} // namespace vantrell

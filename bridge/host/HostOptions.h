#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace vantrell
{

/// The command line options of fcp-host.
struct HostOptions {
    QString version = QStringLiteral("7.0.3"); ///< of the simulated application
    QString socketFolder;                      ///< empty: that of Workspace::eventSocketPath()
    QStringList files;                         ///< projects that are open from the start
    QStringList closedFiles;                   ///< known projects that are closed
    bool handsOver = false;                    ///< passes the files to a running host
    QString logPath;                           ///< empty: none
    std::chrono::milliseconds delay{0};        ///< before each answer
    QString failingEvent;                      ///< identifier of the event that fails; empty: none
    bool truncates = false;                    ///< replies are cut short
    QString bundleFolder;                      ///< where to write a bundle instead of running; empty: none

    /// Parses the command line. Nothing when the program is to exit with \a status, after the help or an
    /// error message has been printed.
    static std::optional<HostOptions> read(int argc, char **argv, int &status);

    /// The arguments with which a bundle's executable starts the host.
    QStringList bundleArguments() const;
};

} // namespace vantrell

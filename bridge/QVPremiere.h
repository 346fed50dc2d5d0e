#pragma once

#include <QString>
#include <QStringList>

namespace vantrell
{

/// Which versions of Premiere Pro are installed and running. Stateless; any thread.
class QVPremiere
{
public:
    QVPremiere() = delete;

    static QString bundleIdentifier();

    /// The product versions of the installations in the applications folder whose configuration tells one,
    /// by the names of their folders.
    static QStringList premiereVersions();

    /// Major and minor version of the Premiere Pro that runs, as in "6.0"; null when none runs or its
    /// property list does not tell.
    static QString runningPremiereVersion();

    /// The Creative Suite number of a version: the version without ".0" at its end.
    static QString creativeSuiteNumber(const QString &version);
};

} // namespace vantrell

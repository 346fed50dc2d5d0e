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

#pragma once

#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

namespace vantrell
{

/// A home in which the command line program is run.
class CliHome : public TemporaryHome
{
public:
    /// The arguments are separated by blanks; "~" stands for the home.
    CliRun run(const QString &arguments) const
    {
        return runCli(QString(arguments).replace(QLatin1Char('~'), path()).split(QLatin1Char(' ')));
    }
};

} // namespace vantrell

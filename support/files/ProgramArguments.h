#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace vantrell
{

/// What a program was told on its command line, in the system's encoding, as a string. Any thread.
QString fromArgument(const std::string &argument);
QStringList fromArguments(const std::vector<std::string> &arguments);

} // namespace vantrell

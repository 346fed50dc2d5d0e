#pragma once

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <string>
#include <vector>

namespace vantrell
{

/// What a program was told on its command line, in the system's encoding, as a string. Any thread.
inline QString fromArgument(const std::string &argument)
{
    return QFile::decodeName(argument.c_str());
}

inline QStringList fromArguments(const std::vector<std::string> &arguments)
{
    QStringList texts;
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(texts), fromArgument);
    return texts;
}

} // namespace vantrell

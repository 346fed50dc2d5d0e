#include "support/files/ProgramArguments.h"

#include <QFile>

namespace vantrell
{

QString fromArgument(const std::string &argument)
{
    return QFile::decodeName(argument.c_str());
}

QStringList fromArguments(const std::vector<std::string> &arguments)
{
    QStringList texts;
    for (const std::string &argument : arguments)
        texts.append(fromArgument(argument));
    return texts;
}

} // namespace vantrell

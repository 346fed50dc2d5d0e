#include "TemporaryHome.h"

#include "support/files/StandardFolders.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vantrell
{

TemporaryHome::TemporaryHome()
{
    if (!m_folder.isValid())
        qFatal("No temporary home could be made.");
    set("HOME", QFile::encodeName(path()));
    set("XDG_STATE_HOME", QFile::encodeName(path(QStringLiteral(".local/state"))));
    set("XDG_CONFIG_HOME", QFile::encodeName(path(QStringLiteral(".config"))));
    set("XDG_DATA_HOME", QFile::encodeName(path(QStringLiteral(".local/share"))));
    set("XDG_CACHE_HOME", QFile::encodeName(path(QStringLiteral(".cache"))));
    set("XDG_RUNTIME_DIR", QFile::encodeName(path(QStringLiteral("run"))));
    set("XDG_DOCUMENTS_DIR", QByteArray());
    set("XDG_DESKTOP_DIR", QByteArray());
    QDir().mkpath(path(QStringLiteral(".config")));
    QDir().mkpath(path(QStringLiteral("run")));
    QFile::setPermissions(path(QStringLiteral("run")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    StandardFolders::setSystemLibrary(path(QStringLiteral("var")));
    QVLog::setUserIdFunction([] { return 1000U; });
    UserDefaults::standard().synchronize();
}

TemporaryHome::~TemporaryHome()
{
    for (const Variable &variable : m_variables) {
        if (variable.wasSet)
            qputenv(variable.name, variable.value);
        else
            qunsetenv(variable.name);
    }
    StandardFolders::setSystemLibrary(QString());
    QVLog::setUserIdFunction(nullptr);
}

void TemporaryHome::set(const char *name, const QByteArray &value)
{
    m_variables.push_back(Variable{name, qEnvironmentVariableIsSet(name), qgetenv(name)});
    if (value.isEmpty())
        qunsetenv(name);
    else
        qputenv(name, value);
}

QString TemporaryHome::addFile(const QString &relative, const QByteArray &content) const
{
    const QString filePath = path(relative);
    QDir().mkpath(QFileInfo(filePath).path());
    QFile file(filePath);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("A file of the temporary home could not be written.");
    return filePath;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace vantrell

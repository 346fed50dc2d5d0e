#include "support/files/TransientFile.h"

#include "support/files/FileUtilities.h"
#include "support/files/UnfinishedFiles.h"

#include <QFile>

#include <utility>

namespace vantrell
{

TransientFile::TransientFile(const QString &path)
    : m_path(path)
{
    UnfinishedFiles::add(QFile::encodeName(path));
}

Result<TransientFile> TransientFile::make(const QString &path)
{
    const Result<QString> made = FileUtilities::makeUniqueFile(path);
    if (!made)
        return made.failure();
    return TransientFile(made.value());
}

TransientFile::~TransientFile()
{
    const Result<void> removed = remove();
    Q_UNUSED(removed) // nobody is left to be told
}

Result<void> TransientFile::remove()
{
    if (m_path.isEmpty())
        return {};
    QFile file(std::exchange(m_path, QString()));
    const bool isRemoved = file.remove();
    UnfinishedFiles::remove(QFile::encodeName(file.fileName()));
    if (!isRemoved)
        return Failure{file.errorString()};
    return {};
}

} // namespace vantrell

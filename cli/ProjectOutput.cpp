#include "cli/ProjectOutput.h"

#include "cli/Console.h"

#include <QFile>

namespace vantrell::cli
{

bool writeProject(MyDocument &document, const QString &path)
{
    const auto write = [&]() -> Result<void> {
        if (path != QLatin1String("-"))
            return document.writeToURL(QUrl::fromLocalFile(path), DocumentType::finalCutProXMLFile);
        if (!document.xmlDoc())
            return Failure{QStringLiteral("There is no project to write.")};
        QFile output;
        if (!output.open(stdout, QIODevice::WriteOnly))
            return Failure{output.errorString()};
        const Result<void> written = document.xmlDoc()->write(output);
        if (written && !output.flush())
            return Failure{output.errorString()};
        return written;
    };
    const Result<void> written = write();
    if (!written)
        complain(written.message());
    return written.isOk();
}

} // namespace vantrell::cli

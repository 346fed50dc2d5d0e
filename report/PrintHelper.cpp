#include "report/PrintHelper.h"

#include "support/files/TaskRunner.h"
#include "support/files/UnfinishedFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace vantrell::PrintHelper
{

namespace
{

constexpr int timeoutMs = 60 * 60 * 1000;

/// A temporary file with a unique name, removed even if the program is interrupted.
class TemporaryFile
{
public:
    explicit TemporaryFile(const QString &extension)
        : m_file(QDir::tempPath() + QStringLiteral("/vantrell-report-XXXXXX.") + extension)
    {
        if (m_file.open())
            UnfinishedFiles::add(QFile::encodeName(path()));
    }
    ~TemporaryFile()
    {
        const QByteArray name = QFile::encodeName(path());
        m_file.remove();
        UnfinishedFiles::remove(name);
    }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    QFile &file() { return m_file; }
    QString path() const { return m_file.fileName(); }

private:
    QTemporaryFile m_file;
};

Failure unwritable(const QFile &file)
{
    return Failure{QStringLiteral("A temporary file could not be written: %1.").arg(file.errorString())};
}

Result<void> copy(const QString &from, QIODevice &to)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly))
        return Failure{source.errorString()};
    const auto *const content = reinterpret_cast<const char *>(source.map(0, source.size()));
    if (!content)
        return Failure{source.errorString()};
    if (to.write(content, source.size()) != source.size())
        return Failure{to.errorString()};
    return {};
}

QStringList argumentsFor(const Pages &pages)
{
    QStringList arguments{QStringLiteral("--margin"), QString::number(pages.margin)};
    if (!pages.paper.isNull())
        arguments << QStringLiteral("--paper") << pages.paper;
    if (pages.isLandscape)
        arguments << QStringLiteral("--landscape");
    if (!pages.withNumbers)
        arguments << QStringLiteral("--no-numbers");
    return arguments;
}

} // namespace

QString find()
{
    const QDir folder(QCoreApplication::applicationDirPath());
    for (const char *path : {"vantrell-print-pdf", "../libexec/vantrell/vantrell-print-pdf"}) {
        const QFileInfo program(folder.filePath(QString::fromLatin1(path)));
        if (program.isFile() && program.isExecutable())
            return program.canonicalFilePath();
    }
    return QString();
}

QString missingMessage()
{
    return QStringLiteral("A PDF needs the package \"vantrell-print\", which is not installed.");
}

Result<void> writePDF(const QString &program, const FileUtilities::Writer &html, const QString &imageFolder,
                      const QString &output, const std::optional<Pages> &pages,
                      const std::function<bool()> &isCancelled)
{
    TemporaryFile text(QStringLiteral("html"));
    TemporaryFile pdf(QStringLiteral("pdf"));
    for (TemporaryFile *temporary : {&text, &pdf}) {
        if (!temporary->file().isOpen())
            return unwritable(temporary->file());
    }
    const Result<void> written = html(text.file());
    if (!written)
        return written;
    if (!text.file().flush())
        return unwritable(text.file());
    QStringList arguments{QStringLiteral("--html"), text.path(), QStringLiteral("--images"), imageFolder,
                          QStringLiteral("-o"),     pdf.path()};
    if (pages)
        arguments += argumentsFor(*pages);
    const Result<TaskRunner::Output> run = TaskRunner::run(program, arguments, timeoutMs, {}, isCancelled);
    if (!run)
        return run.failure();
    const bool isDone = run.value().exitCode == 0 && QFileInfo(pdf.path()).size() > 0;
    if (!isDone) {
        const QString reason = QString::fromUtf8(run.value().standardError).trimmed();
        return Failure{reason.isEmpty() ? QStringLiteral("The PDF could not be made.") : reason};
    }
    const auto mayReplace = [&isCancelled](int) {
        return isCancelled && isCancelled() ? Result<void>(Failure{QStringLiteral("Writing was cancelled.")})
                                            : Result<void>();
    };
    return FileUtilities::writeAtomically(
        output, [&pdf](QIODevice &device) { return copy(pdf.path(), device); }, mayReplace);
}

} // namespace vantrell::PrintHelper

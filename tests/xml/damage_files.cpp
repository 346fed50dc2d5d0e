// Damages projects, opens each and saves what could be opened, for tools/damage.

#include "tests/support/Damage.h"
#include "xml/XmlDocument.h"
#include "xml/XmlQuery.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

using namespace vantrell;

namespace
{

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArrayList contentsOf(const QStringList &folders)
{
    QByteArrayList contents;
    for (const QString &folder : folders) {
        const QDir directory(folder);
        for (const QString &name : directory.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name)) {
            QFile file(directory.filePath(name));
            if (file.open(QIODevice::ReadOnly))
                contents.append(file.readAll());
        }
    }
    return contents;
}

/// Opens the file, reads everything that a project is read for, and saves it. Returns the problem, or
/// nothing.
QString tried(const QString &path, const QString &savedPath, bool &isOpened)
{
    const auto document = XmlDocument::fromFile(path, {});
    isOpened = bool(document);
    if (!document)
        return document.message().size() > 20 ? QString() : QStringLiteral("refused without a reason");
    for (const char *query : {".//marker", ".//sequence//name[1]/text()", ".//*[last()]"})
        XmlQuery(QString::fromLatin1(query)).evaluate(document.value()->node());
    const Result<void> saved = document.value()->save(savedPath);
    return saved ? QString() : saved.message();
}

} // namespace

/// OUTPUT COUNT FOLDER...: writes the damaged files as OUTPUT/1.xml and so on, and those that could be opened
/// and saved again as OUTPUT/saved/1.xml. Status 1 when one was neither opened nor refused with a reason.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "damage_files OUTPUT COUNT FOLDER...\n");
        return 2;
    }
    const QDir output(arguments.at(1));
    output.mkpath(QStringLiteral("saved"));
    const QByteArrayList projects = Damage::smallProjects() + contentsOf(arguments.sliced(3));
    int opened = 0;
    int faults = 0;
    const int count = arguments.at(2).toInt();
    for (int i = 1; i <= count; ++i) {
        const QString path = output.filePath(QStringLiteral("%1.xml").arg(i));
        const QByteArray &project = projects.at(i % projects.size());
        if (!writeFile(path, Damage(quint64(i)).damaged(project))) {
            std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
            return 2;
        }
        bool isOpened = false;
        const QString fault = tried(path, output.filePath(QStringLiteral("saved/%1.xml").arg(i)), isOpened);
        opened += isOpened;
        if (!fault.isEmpty()) {
            ++faults;
            std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(fault));
        }
    }
    std::printf("%d damaged files: %d opened, %d refused\n", count, opened, count - opened);
    return faults > 0 ? 1 : 0;
}

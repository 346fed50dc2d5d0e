// Prints the type of each file as Qt programs see it, one a line.

#include <QCoreApplication>
#include <QMimeDatabase>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QMimeDatabase database;
    const QStringList files = QCoreApplication::arguments().mid(1);
    for (const QString &file : files)
        std::puts(qPrintable(database.mimeTypeForFile(file).name()));
    return 0;
}

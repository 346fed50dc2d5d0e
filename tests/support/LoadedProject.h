#pragma once

#include "document/MyDocument.h"
#include "tests/support/ScriptedDocumentInterface.h"

#include <QFile>
#include <QTemporaryDir>

namespace vantrell
{

/// A document with a scripted interface and a folder for its file. A derived class that adds builders must
/// close the document in its destructor.
class LoadedProject
{
public:
    LoadedProject()
        : document(world, services())
    {
        world.watch(document);
    }
    ~LoadedProject() { document.close(); }

    /// Starts loading the project.
    void start(const QByteArray &xml)
    {
        QFile file(folder.filePath(QStringLiteral("project.xml")));
        if (file.open(QIODevice::WriteOnly))
            file.write(xml);
        file.close();
        document.readFromURL(QUrl::fromLocalFile(file.fileName()), DocumentType::publicXML);
    }

    /// Loads it; false when that did not end in 40 seconds.
    bool load(const QByteArray &xml)
    {
        start(xml);
        return MainThread::drainUntil([this] { return world.ended; }, std::chrono::seconds(40));
    }

    QString label(Label label) const { return document.label(label); }

    const QTemporaryDir folder; ///< of the project's file
    ScriptedDocumentInterface world;
    MyDocument document;
    /// Run by a load on threads of their own; at most two.
    std::vector<std::function<void()>> builders;

private:
    MyDocument::Services services()
    {
        const auto builder = [this](std::size_t i) {
            return [this, i](MyDocument &) {
                if (i < builders.size())
                    builders[i]();
            };
        };
        MyDocument::Services services;
        services.inventoryBuilders = {builder(0), builder(1)};
        return services;
    }
};

/// Descriptors from a text such as "name size:desc".
inline std::vector<SortDescriptor> sortDescriptors(const char *text)
{
    std::vector<SortDescriptor> descriptors;
    for (const QString &part : QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts))
        descriptors.push_back({part.section(QLatin1Char(':'), 0, 0), part.contains(QLatin1Char(':'))});
    return descriptors;
}

inline QByteArray project(const QByteArray &content)
{
    return "<xmeml><project><children>" + content + "</children></project></xmeml>";
}

} // namespace vantrell

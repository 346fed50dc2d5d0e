#include "bridge/host/HostProject.h"

#include "bridge/host/ProjectItems.h"
#include "support/FileUtilities.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlEdit.h"
#include "xml/XmlElementWriter.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>

namespace vantrell
{

HostProject::HostProject(const QString &path)
    : m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
{
}

Result<void> HostProject::open()
{
    const std::lock_guard lock(m_mutex);
    if (m_document)
        return {};
    auto document = XmlDocument::fromFile(m_path, {.tolerant = false});
    if (!document)
        return document.failure();
    if (document.value()->wasRepaired()) {
        return Failure{QStringLiteral("The file \"%1\" cannot be opened as a project: %2")
                           .arg(m_path, document.value()->firstFault())};
    }
    if (!document.value()->rootElement().isElement("xmeml"))
        return Failure{QStringLiteral("The file \"%1\" is no xmeml project.").arg(m_path)};
    m_document = std::move(document.value());
    m_isOpen = true;
    return {};
}

void HostProject::openEmpty(std::int64_t xmemlVersion)
{
    const QByteArray skeleton =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE xmeml><xmeml version=\"" +
        QByteArray::number(qlonglong(xmemlVersion)) + "\"><project><name/><children/></project></xmeml>";
    const std::lock_guard lock(m_mutex);
    auto document = XmlDocument::fromData(skeleton, {});
    if (!document)
        return;
    m_document = std::move(document.value());
    XmlEdit::setText(m_document->rootElement().childElement("project").childElement("name"),
                     FileUtilities::deletingPathExtension(QFileInfo(m_path).fileName()));
    m_isOpen = true;
}

Result<void> HostProject::close(const QString &savesTo)
{
    const std::lock_guard lock(m_mutex);
    if (!m_document)
        return {};
    // The file always holds what the project does: nothing but an import changes one, and it saves.
    if (!savesTo.isEmpty() && (savesTo != m_path || !QFileInfo::exists(m_path))) {
        if (const Result<void> saved = m_document->save(savesTo); !saved)
            return saved;
    }
    m_isOpen = false;
    m_document.reset();
    return {};
}

Result<QByteArray> HostProject::xml(const std::atomic<bool> *cancelled) const
{
    const std::lock_guard lock(m_mutex);
    if (!m_document)
        return notOpen();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (const Result<void> written = m_document->writeUtf8(buffer, cancelled); !written)
        return written.failure();
    return buffer.data();
}

Result<QByteArray> HostProject::itemXml(const QString &identifier) const
{
    const std::lock_guard lock(m_mutex);
    const Result<XmlNode> found = item(identifier);
    if (!found)
        return found.failure();
    const QString version = m_document->rootElement().attribute("version").toHtmlEscaped();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    buffer.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE xmeml>\n<xmeml");
    if (!version.isEmpty())
        buffer.write(" version=\"" + version.toUtf8() + '"');
    buffer.write(">");
    if (!XmlElementWriter::write(found.value(), buffer))
        return Failure{QStringLiteral("The item \"%1\" cannot be written.").arg(identifier)};
    buffer.write("</xmeml>\n");
    return buffer.data();
}

Result<QByteArray> HostProject::tableOfContents() const
{
    const std::lock_guard lock(m_mutex);
    if (!m_document)
        return notOpen();
    return ProjectItems::tableOfContents(m_document->rootElement());
}

Result<QString> HostProject::itemName(const QString &identifier) const
{
    const std::lock_guard lock(m_mutex);
    const Result<XmlNode> found = item(identifier);
    if (!found)
        return found.failure();
    return QVXMLParser::nameForNode(found.value(), true).value_or(identifier);
}

Result<void> HostProject::add(const ImportedXml &imported)
{
    const std::lock_guard lock(m_mutex);
    if (!m_document)
        return notOpen();
    const XmlNode container = ProjectItems::container(m_document->rootElement());
    XmlNodeList added;
    for (const XmlNode source : imported.items) {
        const XmlNode copy = m_document->copyOfElement(source);
        m_document->moveTo(copy, container);
        added.push_back(copy);
    }
    const Result<void> saved = m_document->save(m_path);
    if (!saved) {
        for (const XmlNode copy : added)
            m_document->remove(copy);
    }
    return saved;
}

Result<void> HostProject::save(const QString &path) const
{
    const std::lock_guard lock(m_mutex);
    if (!m_document)
        return notOpen();
    return m_document->save(path);
}

Failure HostProject::notOpen() const
{
    return Failure{QStringLiteral("The project \"%1\" is not open.").arg(m_path)};
}

Result<XmlNode> HostProject::item(const QString &identifier) const
{
    if (!m_document)
        return notOpen();
    const XmlNode found = ProjectItems::find(m_document->rootElement(), identifier);
    if (!found) {
        return Failure{QStringLiteral("The project \"%1\" holds no item \"%2\".").arg(m_path, identifier)};
    }
    return found;
}

} // namespace vantrell

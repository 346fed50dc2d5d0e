#include "bridge/host/HostProject.h"

#include "bridge/host/HostMessages.h"
#include "bridge/host/ProjectItems.h"
#include "support/files/FileUtilities.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlElementWriter.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <system_error>

namespace vantrell
{

namespace
{

/// Larger projects are saved in the background.
constexpr qsizetype largestSavedAtOnce = 50'000'000; // bytes

Result<void> saveAndReport(ProjectText text, const QString &path)
{
    Result<void> saved = text.save(path);
    hostMessage(saved ? QStringLiteral("saved \"%1\"").arg(path) : saved.message());
    return saved;
}

/// The file's path with links resolved; as it is when there is no such file.
QString resolved(const QString &path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

} // namespace

HostProject::HostProject(const QString &path)
    : m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
{
}

HostProject::~HostProject()
{
    finishSaving();
    if (m_isOpen && !m_isSaved) [[maybe_unused]]
        const Result<void> saved = saveAndReport(m_text, m_path);
}

Result<void> HostProject::open()
{
    const std::lock_guard lock(m_mutex);
    if (m_isOpen)
        return {};
    auto text = ProjectText::fromFile(m_path);
    if (!text)
        return text.failure();
    set(std::move(text.value()));
    m_isSaved = true;
    m_isOpen = true;
    return {};
}

Result<void> HostProject::openEmpty(std::int64_t xmemlVersion)
{
    const std::lock_guard lock(m_mutex);
    auto text =
        ProjectText::empty(FileUtilities::deletingPathExtension(QFileInfo(m_path).fileName()), xmemlVersion);
    if (!text)
        return text.failure();
    set(std::move(text.value()));
    m_isOpen = true;
    return {};
}

Result<void> HostProject::close(const QString &savesTo)
{
    const std::lock_guard lock(m_mutex);
    if (!m_isOpen)
        return {};
    finishSaving();
    // A saved file is up to date: only imports change a project, and they save it.
    if (!savesTo.isEmpty() && (savesTo != m_path || !m_isSaved || !QFileInfo::exists(m_path))) {
        if (const Result<void> saved = m_text.save(savesTo); !saved)
            return saved;
    }
    m_isOpen = false;
    set({});
    return {};
}

Result<QByteArray> HostProject::xml()
{
    const std::lock_guard lock(m_mutex);
    return m_isOpen ? Result<QByteArray>(m_text.xml()) : notOpen();
}

Result<QByteArray> HostProject::itemXml(const QString &identifier)
{
    const std::lock_guard lock(m_mutex);
    const Result<XmlNode> found = item(identifier);
    if (!found)
        return found.failure();
    const QString version = m_tree->rootElement().attribute("version").toHtmlEscaped();
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

Result<QByteArray> HostProject::tableOfContents()
{
    const std::lock_guard lock(m_mutex);
    const Result<XmlNode> element = root();
    return element ? Result<QByteArray>(ProjectItems::tableOfContents(element.value())) : element.failure();
}

Result<QString> HostProject::itemName(const QString &identifier)
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
    if (!m_isOpen)
        return notOpen();
    finishSaving();
    const ProjectText before = m_text;
    const bool wasSaved = m_isSaved;
    set(m_text.with(imported));
    m_isSaved = false;
    hostMessage(QStringLiteral("imported into \"%1\"").arg(m_path));
    startSaving();
    if (m_text.size() > largestSavedAtOnce)
        return {};
    finishSaving();
    if (m_isSaved)
        return {};
    set(before);
    m_isSaved = wasSaved;
    return Failure{QStringLiteral("The import into \"%1\" is undone, as it could not be saved.").arg(m_path)};
}

Result<void> HostProject::save(const QString &path)
{
    const std::lock_guard lock(m_mutex);
    if (!m_isOpen)
        return notOpen();
    finishSaving();
    const Result<void> saved = m_text.save(path);
    if (saved && path == m_path)
        m_isSaved = true;
    return saved;
}

Failure HostProject::notOpen() const
{
    return Failure{QStringLiteral("The project \"%1\" is not open.").arg(m_path)};
}

void HostProject::set(ProjectText text)
{
    m_text = std::move(text);
    m_tree.reset();
}

Result<XmlNode> HostProject::root()
{
    if (!m_isOpen)
        return notOpen();
    if (!m_tree) {
        auto tree = m_text.tree();
        if (!tree)
            return tree.failure();
        m_tree = std::move(tree.value());
    }
    return m_tree->rootElement();
}

Result<XmlNode> HostProject::item(const QString &identifier)
{
    const Result<XmlNode> element = root();
    if (!element)
        return element;
    const XmlNode found = ProjectItems::find(element.value(), identifier);
    if (!found) {
        return Failure{QStringLiteral("The project \"%1\" holds no item \"%2\".").arg(m_path, identifier)};
    }
    return found;
}

void HostProject::startSaving()
{
    const auto save = [text = m_text, path = m_path] { return saveAndReport(text, path); };
    try {
        m_saving = std::async(std::launch::async, save);
    } catch (const std::system_error &) {
        std::promise<Result<void>> saved; // no thread available
        saved.set_value(save());
        m_saving = saved.get_future();
    }
}

void HostProject::finishSaving()
{
    if (m_saving.valid())
        m_isSaved = m_saving.get().isOk();
}

std::shared_ptr<HostProject> HostProjects::openAt(const QString &path) const
{
    const std::lock_guard lock(m_mutex);
    auto known = find(path);
    return known && known->isOpen() ? known : nullptr;
}

std::vector<std::shared_ptr<HostProject>> HostProjects::allOpen() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<std::shared_ptr<HostProject>> projects;
    std::copy_if(m_projects.begin(), m_projects.end(), std::back_inserter(projects),
                 [](const auto &project) { return project->isOpen(); });
    return projects;
}

Result<std::shared_ptr<HostProject>> HostProjects::makeNew(std::int64_t xmemlVersion)
{
    const std::lock_guard lock(m_mutex);
    const QString folder = m_projects.empty() ? m_folder : QFileInfo(m_projects.front()->path()).path();
    QFile file(folder + QStringLiteral("/Vantrell.xml"));
    for (int number = 2; find(file.fileName()) || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
         ++number) {
        // Skip names of existing files and of open projects whose file is gone.
        if (!find(file.fileName()) && !QFileInfo::exists(file.fileName())) {
            return Failure{QStringLiteral("The file \"%1\" could not be made: %2.")
                               .arg(file.fileName(), file.errorString())};
        }
        file.setFileName(folder + QStringLiteral("/Vantrell %1.xml").arg(number));
    }
    auto project = std::make_shared<HostProject>(file.fileName());
    if (const Result<void> opened = project->openEmpty(xmemlVersion); !opened)
        return opened.failure();
    m_projects.push_back(project);
    return project;
}

void HostProjects::discard(const std::shared_ptr<HostProject> &project)
{
    const std::lock_guard lock(m_mutex);
    std::erase(m_projects, project);
    QFile::remove(project->path());
}

std::shared_ptr<HostProject> HostProjects::at(const QString &path)
{
    const std::lock_guard lock(m_mutex);
    if (auto known = find(path))
        return known;
    return m_projects.emplace_back(std::make_shared<HostProject>(path));
}

std::shared_ptr<HostProject> HostProjects::find(const QString &path) const
{
    const QString wanted = resolved(path);
    const auto found = std::find_if(m_projects.begin(), m_projects.end(), [&](const auto &project) {
        return project->path() == path || resolved(project->path()) == wanted;
    });
    return found == m_projects.end() ? nullptr : *found;
}

} // namespace vantrell

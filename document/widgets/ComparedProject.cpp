#include "document/widgets/ComparedProject.h"

#include "document/widgets/DocumentDisposal.h"

namespace vantrell
{

ComparedProject::ComparedProject()
    : m_interface(std::make_shared<HeadlessDocumentInterface>())
    , m_workbench(std::make_unique<Workbench>(*m_interface, Workbench::Inventories::None))
{
}

ComparedProject::~ComparedProject()
{
    m_workbench->document().disconnect(this);
    DocumentDisposal::dispose(std::move(m_workbench), std::move(m_interface));
}

void ComparedProject::open(const QString &path)
{
    m_path = path;
    const MyDocument *const document = &m_workbench->document();
    connect(document, &MyDocument::loadFinished, this,
            [this](bool loaded, const QString &message, const QString &notice) {
                m_notice = notice;
                if (!loaded)
                    Q_EMIT opened(false, message);
            });
    connect(document, &MyDocument::inventoriesFinished, this, [this] { Q_EMIT opened(true, QString()); });
    if (!m_workbench->open(path))
        Q_EMIT opened(false, tr("The file is of no type that can be opened."));
}

} // namespace vantrell

#include "bridge/host/ImportedXml.h"

#include "support/TextNumbers.h"
#include "xml/XmlReferences.h"

namespace vantrell
{

Result<ImportedXml> ImportedXml::read(const QByteArray &xml, std::int64_t maximumVersion)
{
    auto document = XmlDocument::fromData(XmlReferences::joinedSurrogates(xml), {.tolerant = false});
    if (!document)
        return Failure{QStringLiteral("The document cannot be imported: %1").arg(document.message())};
    const XmlNode root = document.value()->rootElement();
    if (!root.isElement("xmeml"))
        return Failure{QStringLiteral("The document cannot be imported: it is no xmeml.")};
    const std::int64_t version = integerValue(root.attribute("version"));
    if (version > maximumVersion) {
        return Failure{QStringLiteral("The document cannot be imported: it is xmeml of version %1, and "
                                      "version %2 is the highest that can be read.")
                           .arg(version)
                           .arg(maximumVersion)};
    }
    ImportedXml imported{std::move(document.value()), {}};
    for (XmlNode child = root.firstChildElement(); child; child = child.nextSiblingElement()) {
        if (!child.isElement("project")) {
            imported.items.push_back(child);
            continue;
        }
        XmlNode item = child.childElement("children").firstChildElement();
        for (; item; item = item.nextSiblingElement())
            imported.items.push_back(item);
    }
    if (imported.items.empty())
        return Failure{QStringLiteral("The document cannot be imported: it holds nothing.")};
    return imported;
}

} // namespace vantrell

#pragma once

#include "support/Result.h"
#include "xml/XmlDocument.h"

#include <QByteArray>

#include <cstdint>
#include <memory>

namespace vantrell
{

/// An xmeml document that was sent to the application, and what of it goes into a project. A value with one
/// owner.
struct ImportedXml {
    std::unique_ptr<XmlDocument> document;
    /// Bins, clips and sequences, in document order; a project gives what it holds. Never empty.
    XmlNodeList items;

    /// Reads a document in UTF-8. The failure says what is wrong with it: not well-formed, no xmeml, of a
    /// version beyond \a maximumVersion, without an item. Any thread.
    static Result<ImportedXml> read(const QByteArray &xml, std::int64_t maximumVersion);
};

} // namespace vantrell

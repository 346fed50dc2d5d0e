#pragma once

#include "support/files/Result.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace vantrell
{

/// An imported xmeml document and its items. A value type.
struct ImportedXml {
    QByteArray xml;
    /// Bins, clips and sequences in document order, those inside a project included. They are parts of the
    /// text that can be inserted into any other document. Never empty.
    std::vector<QByteArrayView> items;

    /// Parses a document in UTF-8. Fails, with the reason, when it is not well-formed, not xmeml, of a
    /// version beyond \a maximumVersion, or without items. Any thread.
    static Result<ImportedXml> read(const QByteArray &xml, std::int64_t maximumVersion);
};

} // namespace vantrell

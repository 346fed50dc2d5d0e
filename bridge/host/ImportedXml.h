#pragma once

#include "support/files/Result.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace vantrell
{

/// An xmeml document that was sent to the application, and what of it goes into a project. A value.
struct ImportedXml {
    QByteArray xml;
    /// Bins, clips and sequences, in document order; a project gives what it holds. Parts of the text, which
    /// mean the same wherever they stand. Never empty.
    std::vector<QByteArrayView> items;

    /// Reads a document in UTF-8. The failure says what is wrong with it: not well-formed, no xmeml, of a
    /// version beyond \a maximumVersion, without an item. Any thread.
    static Result<ImportedXml> read(const QByteArray &xml, std::int64_t maximumVersion);
};

} // namespace vantrell

#pragma once

#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace vantrell
{

/// Where the outermost elements of an XML text stand in its bytes: enough to hand out parts of a large text
/// and to put others into it without a tree. A value.
struct XmlOutline {
    struct Element {
        QByteArray name;   ///< without a prefix
        int depth = 0;     ///< 0 for the root
        qsizetype begin;   ///< of its start tag
        qsizetype content; ///< the end of its start tag; of an empty-element tag its "/>"
        qsizetype close;   ///< where its end tag begins; of an empty-element tag its "/>"
        qsizetype end;
        bool declaresNamespaces = false;
    };

    /// The root and what lies up to so many levels below it, in document order.
    std::vector<Element> elements;
    /// Of the root, as its attributes' names without prefixes and their values.
    std::vector<std::pair<QString, QString>> rootAttributes;

    /// Reads the outline of a text in UTF-8. The failure is the parser's description of the first fault,
    /// references to unknown entities included. Nothing, with no failure, when the text is in another
    /// encoding. Any thread.
    static Result<std::optional<XmlOutline>> read(const QByteArray &xml, int levels);

    /// The value of the root's attribute; null when it has none.
    QString rootAttribute(QStringView name) const;
    /// The first child of that name of the element at the index; -1 when it has none.
    qsizetype childOf(qsizetype parent, QByteArrayView name) const;
    /// The element's children, by their indices.
    std::vector<qsizetype> childrenOf(qsizetype parent) const;
};

} // namespace vantrell

#pragma once

#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace vantrell
{

/// The byte offsets of the outermost elements of an XML text: enough to extract parts of a large text, and to
/// insert others, without a tree. A value.
struct XmlOutline {
    struct Element {
        QByteArray name;   ///< without a prefix
        int depth = 0;     ///< 0 for the root
        qsizetype begin;   ///< offset of its start tag
        qsizetype content; ///< the end of its start tag; of an empty-element tag its "/>"
        qsizetype close;   ///< where its end tag begins; of an empty-element tag its "/>"
        qsizetype end;
        bool declaresNamespaces = false;
    };

    /// The root and the elements up to that many levels below it, in document order.
    std::vector<Element> elements;
    /// The root's attributes: names without prefixes, and values.
    std::vector<std::pair<QString, QString>> rootAttributes;

    /// Reads the outline of a text in UTF-8. The failure is the parser's description of the first fault,
    /// references to unknown entities included. nullopt, not a failure, when the text is in another encoding.
    /// Any thread.
    static Result<std::optional<XmlOutline>> read(const QByteArray &xml, int levels);

    /// The value of an attribute of the root; null without it.
    QString rootAttribute(QStringView name) const;
    /// The index of the first child of that name of the element at the index; -1 without one.
    qsizetype childOf(qsizetype parent, QByteArrayView name) const;
    /// The indexes of the element's children.
    std::vector<qsizetype> childrenOf(qsizetype parent) const;
};

} // namespace vantrell

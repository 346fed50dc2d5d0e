#pragma once

#include "support/files/Result.h"
#include "xml/XmlNode.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>

class QIODevice;

namespace vantrell
{

class XmlTree;

/// One tree and everything that was ever part of it. Elements that are removed, and copies that are not
/// used, are kept out of the tree until the document dies: records, menus and caches may go on pointing at
/// them, and edits on them do no harm. Not thread-safe: several threads may read while none edits. Where
/// memory runs out, edits throw std::bad_alloc; loading and saving fail.
class XmlDocument
{
public:
    struct LoadOptions {
        /// Repair what is malformed instead of refusing it.
        bool tolerant = true;
        /// Looked at while parsing; true ends it with a failure. May be null.
        const std::atomic<bool> *cancelled = nullptr;
    };

    /// What stands between the elements of a written tree: line ends and two blanks for each level, or
    /// nothing.
    enum class Layout { Indented, Compact };

    /// Reads a file as it is at the moment of opening; it is never written or mapped. The failure says
    /// what is wrong with it: missing, a folder, empty, no XML, no root element, nested too deeply.
    static Result<std::unique_ptr<XmlDocument>> fromFile(const QString &path, const LoadOptions &options);
    static Result<std::unique_ptr<XmlDocument>> fromData(const QByteArray &data, const LoadOptions &options);

    ~XmlDocument();
    XmlDocument(const XmlDocument &) = delete;
    XmlDocument &operator=(const XmlDocument &) = delete;

    /// The document node, the context of queries on the whole tree; and its root element.
    XmlNode node() const;
    XmlNode rootElement() const;

    /// Whether the input was malformed and had to be repaired, and the first fault found in it.
    bool wasRepaired() const { return m_repaired; }
    const QString &firstFault() const { return m_firstFault; }
    /// How much of a malformed input is missing from the tree, as a sentence; empty when all of it is there.
    const QString &loss() const { return m_loss; }

    /// The declared encoding, empty when there is none. One that is set is declared and written from then on.
    QByteArray encoding() const;
    void setEncoding(const QByteArray &encoding);

    /// Writes the tree in its declared encoding (UTF-8 when it has none), whole or not at all. Nothing
    /// may change the tree meanwhile. Once `cancelled` is set (null for never) writing fails. Any thread.
    Result<void> save(const QString &path, const std::atomic<bool> *cancelled = nullptr,
                      Layout layout = Layout::Indented) const;
    Result<void> write(QIODevice &device, const std::atomic<bool> *cancelled = nullptr,
                       Layout layout = Layout::Indented) const;
    /// Indented, in UTF-8 whatever the declared encoding is.
    Result<void> writeUtf8(QIODevice &device, const std::atomic<bool> *cancelled = nullptr) const;
    /// The element as XML text, without a declaration and without added white space.
    static QString textOfElement(XmlNode element);

    /// Parses the text of one element; well-formed text only. The element belongs to this document and
    /// stands outside its tree until it is appended somewhere. The failure is the parser's description.
    Result<XmlNode> elementFromText(const QString &xml);
    /// A deep copy of the element, standing outside the tree.
    XmlNode copyOfElement(XmlNode element);

    /// Takes the element out of the tree and keeps it. Nothing happens to one that is out already.
    void remove(XmlNode element);
    /// Makes the element the last child of the parent, wherever it was before. False, and nothing
    /// changed, when either is missing or the parent lies inside the element.
    bool moveTo(XmlNode element, XmlNode parent);

    /// Counts the changes to elements of the document, so that what was read before can be told from
    /// what holds now.
    std::uint64_t revision() const { return m_revision; }
    void noteChange() { ++m_revision; }

    /// The document that the node belongs to, in its tree or outside; null for a null handle.
    static XmlDocument *owning(XmlNode node);

private:
    XmlDocument();
    static Result<std::unique_ptr<XmlDocument>> parse(const struct ParseRequest &request);
    Result<void> writeEncoded(QIODevice &device, const QByteArray &encoding,
                              const std::atomic<bool> *cancelled, Layout layout) const;

    const std::unique_ptr<XmlTree> m_tree;
    std::uint64_t m_revision = 0;
    bool m_repaired = false;
    QString m_firstFault;
    QString m_loss;
};

} // namespace vantrell

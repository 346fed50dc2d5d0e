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

class XmlChanges;
class XmlTree;

/// One tree and everything that was ever part of it. Removed elements and unused copies are kept outside the
/// tree until the document is destroyed, so that records, menus and caches may still refer to them, and
/// editing them does no harm. Not thread-safe: several threads may read while none edits. Without memory,
/// edits throw std::bad_alloc; loading and saving fail.
class XmlDocument
{
public:
    struct LoadOptions {
        /// Repair malformed input instead of refusing it.
        bool tolerant = true;
        /// Polled while parsing; setting it ends the parse with a failure. May be null.
        const std::atomic<bool> *cancelled = nullptr;
        /// What fromFile() says of a file whose text cannot be parsed: "%1" is its path, "%2" the reason.
        QString failure = QStringLiteral("The file \"%1\" cannot be opened as a project: %2");
    };

    /// White space between written elements: a line end and two blanks per level, or none.
    enum class Layout { Indented, Compact };

    /// Reads a file as of the moment it is opened; the file is neither written nor mapped. The failure tells
    /// what is wrong: missing, a folder, empty, not XML, no root element, nested too deeply.
    static Result<std::unique_ptr<XmlDocument>> fromFile(const QString &path, const LoadOptions &options);
    static Result<std::unique_ptr<XmlDocument>> fromData(const QByteArray &data, const LoadOptions &options);

    ~XmlDocument();
    XmlDocument(const XmlDocument &) = delete;
    XmlDocument &operator=(const XmlDocument &) = delete;

    /// The document node, which is the context for queries on the whole tree; and the root element.
    XmlNode node() const;
    XmlNode rootElement() const;

    /// Whether the input was malformed and had to be repaired, and the first fault found in it.
    bool wasRepaired() const { return m_repaired; }
    const QString &firstFault() const { return m_firstFault; }
    /// How much of a malformed input is missing from the tree, as a sentence; empty when nothing is.
    const QString &loss() const { return m_loss; }

    /// The declared encoding, or empty. Setting one declares it and writes in it from then on.
    QByteArray encoding() const;
    void setEncoding(const QByteArray &encoding);

    /// Writes the tree in its declared encoding, else UTF-8; save() replaces the file atomically. The tree
    /// must not change meanwhile. Fails once `cancelled` (may be null) is set. Any thread.
    Result<void> save(const QString &path, const std::atomic<bool> *cancelled = nullptr,
                      Layout layout = Layout::Indented) const;
    Result<void> write(QIODevice &device, const std::atomic<bool> *cancelled = nullptr,
                       Layout layout = Layout::Indented) const;
    /// Indented, in UTF-8 whatever the declared encoding is.
    Result<void> writeUtf8(QIODevice &device, const std::atomic<bool> *cancelled = nullptr) const;
    /// The element as XML text, without a declaration or added white space.
    static QString textOfElement(XmlNode element);

    /// Parses the text of one element, which must be well-formed. The element belongs to this document and
    /// stays outside its tree until it is appended. The failure is the parser's description.
    Result<XmlNode> elementFromText(const QString &xml);
    /// A deep copy of the element, outside the tree.
    XmlNode copyOfElement(XmlNode element);

    /// Takes the element out of the tree and keeps it. No effect on one outside the tree.
    void remove(XmlNode element);
    /// Moves the element, in the tree or not, to the end of the parent. False, and no change, when either is
    /// null or the parent is inside the element.
    bool moveTo(XmlNode element, XmlNode parent);

    /// Adds what edits do to the tree to `changes` from now on; null ends that. Attributes are not recorded.
    void recordChanges(XmlChanges *changes);
    /// Undoes changes, which must be the last ones of the nodes concerned, and replaces them by those that
    /// redo them. The tree is then byte for byte what it was. Without memory it throws and changes nothing.
    void revert(XmlChanges &changes);

    /// Counts the changes to elements of the document, so that caches can tell whether they are outdated.
    std::uint64_t revision() const { return m_revision; }
    void noteChange() { ++m_revision; }

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

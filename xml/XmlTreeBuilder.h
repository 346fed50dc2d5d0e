#pragma once

// For use inside xml/ only.

#include "xml/XmlTree.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell
{

/// Builds a tree from the events of a parser; names are made on the parser's side (XmlNames). Text is
/// gathered until another event comes, so a text in many parts costs no more than a text in one.
class XmlTreeBuilder
{
public:
    /// \a keepsSpace: keep white space between elements.
    XmlTreeBuilder(XmlTree &tree, bool keepsSpace);

    void startElement(XmlNameId name);
    void addNamespace(XmlNameId prefix, std::string_view uri); ///< of the element just started
    /// Of the element just started; a duplicate name is ignored.
    void addAttribute(XmlNameId name, std::string_view value);
    /// Whether the element just started asks for its white space to be kept.
    void setSpace(bool isKept);
    void endElement();
    void addText(std::string_view text);
    void addCData(std::string_view text);
    void addComment(std::string_view text);
    void addInstruction(XmlNameId target);
    void addInstruction(XmlNameId target, std::string_view data);
    void addDoctype();
    /// The open element contains text: its white space is data, also the white space so far.
    void keepSpace();

    /// Closes all open elements.
    void finish();
    /// The document type declaration as written; dropped when no parser would accept it.
    void setDoctype(const std::string &text);

private:
    struct OpenElement {
        XmlNodeId node;
        XmlNodeId lastChild;      ///< stored in the tree at the element's end
        std::uint32_t firstBlank; ///< the first of its pending blanks
        bool keepsSpace;          ///< it contains text, CDATA or a reference, or has xml:space
        bool asksForSpace;        ///< by xml:space
        bool hasElements;
    };

    /// White space that may turn out to be only between elements.
    struct PendingBlank {
        XmlNodeId after; ///< the child before it; 0 at the element's start
        std::uint32_t at;
        std::uint32_t length;
    };

    /// The text since the last event of another kind. Text and CDATA are the open text of the tree.
    enum class Run { None, Blank, Text, CData };

    XmlNodeId parent() const { return m_open.empty() ? XmlTree::documentId : m_open.back().node; }
    void append(XmlNodeId child);
    void setLastChild();
    void endRun()
    {
        if (m_run != Run::None)
            storeRun();
    }
    void storeRun();
    bool isKnownBlank(std::string_view text);
    bool storeAsBlank(std::string_view text);
    void addBlanks();
    std::string_view textOf(const PendingBlank &blank) const
    {
        return {m_blankBytes.data() + blank.at, blank.length};
    }

    XmlTree &m_tree;
    const bool m_keepsSpace;
    std::vector<OpenElement> m_open;
    Run m_run = Run::None;
    PendingBlank m_blank = {}; // the run, when it is white space
    std::vector<PendingBlank> m_blanks;
    std::string m_blankBytes;
    std::array<std::uint32_t, 128> m_lastBlanks = {}; // by length: where the last one is, plus 1
    std::vector<XmlNodeId> m_attributeOwners;         // by name: the element that got one such last
    XmlNodeId m_doctype = 0;
    bool m_hasLateBlanks = false;
};

} // namespace vantrell

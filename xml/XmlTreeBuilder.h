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

/// Builds a tree from the events of a parser; names belong to the parser's side (XmlNames). Text is gathered
/// until something else comes, so that a text that arrives in many parts costs no more than one in one part.
class XmlTreeBuilder
{
public:
    /// \a keepsSpace: white space between elements is kept as well.
    XmlTreeBuilder(XmlTree &tree, bool keepsSpace);

    void startElement(XmlNameId name);
    void addNamespace(XmlNameId prefix, std::string_view uri); ///< of the element just started
    /// Of the element just started; one of a name that it has already is passed over.
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
    /// The open element turns out to hold text: its white space is data, that met so far included.
    void keepSpace();

    /// Closes what is open.
    void finish();
    /// The document type declaration as it is written. One that no parser would take is left out.
    void setDoctype(const std::string &text);

private:
    struct OpenElement {
        XmlNodeId node;
        XmlNodeId lastChild;      ///< which the tree learns at the element's end
        std::uint32_t firstBlank; ///< its first one in the list of pending blanks
        bool keepsSpace;          ///< it holds text, CDATA or a reference, or asks for its space to be kept
        bool asksForSpace;        ///< by xml:space
        bool hasElements;
    };

    /// White space met in an element that may turn out to stand between elements only.
    struct PendingBlank {
        XmlNodeId after; ///< the child that it follows; 0 at the element's start
        std::uint32_t at;
        std::uint32_t length;
    };

    /// What has come since the last event of another kind. Text and CDATA are the tree's open text.
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
    PendingBlank m_blank = {}; // the run, when it is one
    std::vector<PendingBlank> m_blanks;
    std::string m_blankBytes;
    std::array<std::uint32_t, 128> m_lastBlanks = {}; // by length: where the last one is, plus 1
    std::vector<XmlNodeId> m_attributeOwners;         // by name: the element that got one such last
    XmlNodeId m_doctype = 0;
    bool m_hasLateBlanks = false;
};

} // namespace vantrell

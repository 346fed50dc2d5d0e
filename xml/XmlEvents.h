#pragma once

// For use inside xml/ only.

#include "xml/XmlTreeBuilder.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string_view>
#include <thread>
#include <vector>

namespace vantrell
{

/// Hands what a parser finds to the builder of a tree, which works on a thread of its own: parsing takes
/// about as long as building. Events are gathered in blocks; inputs of less than a block, and systems that
/// have no thread to give, do without one. Its functions are for the parser's thread and throw std::bad_alloc
/// when the builder did.
class XmlEvents
{
public:
    explicit XmlEvents(XmlTreeBuilder &builder);
    /// Ends the thread.
    ~XmlEvents();
    XmlEvents(const XmlEvents &) = delete;
    XmlEvents &operator=(const XmlEvents &) = delete;

    void startElement(XmlNameId name) { add(Kind::StartElement, name); }
    void endElement() { add(Kind::EndElement, 0); }
    void addNamespace(XmlNameId prefix, std::string_view uri) { add(Kind::Namespace, prefix, uri); }
    void addAttribute(XmlNameId name, std::string_view value) { add(Kind::Attribute, name, value); }
    void setSpace(bool isKept) { add(Kind::Space, isKept ? 1 : 0); }
    void addText(std::string_view text) { add(Kind::Text, 0, text); }
    void addCData(std::string_view text) { add(Kind::CData, 0, text); }
    void addComment(std::string_view text) { add(Kind::Comment, 0, text); }
    void addInstruction(XmlNameId target) { add(Kind::BareInstruction, target); }
    void addInstruction(XmlNameId target, std::string_view data) { add(Kind::Instruction, target, data); }
    void addDoctype() { add(Kind::Doctype, 0); }
    void keepSpace() { add(Kind::KeepSpace, 0); }

    /// Returns when the builder has been told everything.
    void finish();

private:
    enum class Kind : std::uint32_t {
        StartElement,
        EndElement,
        Namespace,
        Attribute,
        Space,
        Text,
        CData,
        Comment,
        BareInstruction,
        Instruction,
        Doctype,
        KeepSpace,
    };

    /// A kind with a name or a flag; the length of the text follows where there is one, and the text.
    struct Event {
        std::uint32_t number : 28;
        std::uint32_t kind : 4;
    };
    using Block = std::vector<char>;

    void add(Kind kind, std::uint32_t number)
    {
        char *const to = room(sizeof(Event));
        const Event event{number, std::uint32_t(kind)};
        std::memcpy(to, &event, sizeof event);
    }
    void add(Kind kind, std::uint32_t number, std::string_view text)
    {
        char *const to = room(sizeof(Event) + sizeof(std::uint64_t) + text.size());
        const Event event{number, std::uint32_t(kind)};
        const std::uint64_t size = text.size();
        std::memcpy(to, &event, sizeof event);
        std::memcpy(to + sizeof event, &size, sizeof size);
        std::memcpy(to + sizeof event + sizeof size, text.data(), text.size());
    }
    /// Where so many bytes go.
    char *room(std::size_t size)
    {
        if (m_used + size > m_block.size())
            nextBlock(size);
        char *const start = m_block.data() + m_used;
        m_used += size;
        return start;
    }
    void nextBlock(std::size_t size);
    void handOver();
    void replay(const Block &block, std::size_t used);
    void tell(const Event &event, std::string_view text);
    void work();

    struct Filled {
        Block block;
        std::size_t used;
    };

    XmlTreeBuilder &m_builder;
    Block m_block;          // what events are added to
    std::size_t m_used = 0; // bytes of it
    std::thread m_thread;
    bool m_hasNoThread = false;
    std::atomic<bool> m_failed = false;

    std::mutex m_mutex; // guards everything below
    std::condition_variable m_changed;
    std::deque<Filled> m_filled;
    std::vector<Block> m_spare;
    bool m_isWorking = false; // on a block that is no longer among the filled ones
    bool m_ended = false;
};

} // namespace vantrell

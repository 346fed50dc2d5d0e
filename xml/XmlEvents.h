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

/// What the parser's thread writes often and what the builder's thread does are that many bytes apart: two
/// cache lines, as processors fetch them in pairs.
constexpr std::size_t xmlThreadAlignment = 128;

/// Passes what a parser finds to the builder of a tree, which works on a thread of its own: parsing takes
/// about as long as building. Events are gathered in blocks; inputs of less than a block are built without a
/// thread, as are all when none can be started. To be called on the parser's thread; throws std::bad_alloc
/// when the builder did.
class XmlEvents
{
public:
    explicit XmlEvents(XmlTreeBuilder &builder);
    /// Joins the thread.
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

    /// Waits until the builder has processed all events.
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

    /// A kind with a name or a flag; a text follows with its length in front, where the kind has one.
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
    /// Reserves that many bytes of the block.
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
    static void tell(XmlTreeBuilder &builder, const Event &event, std::string_view text);
    void work();

    struct Filled {
        Block block;
        std::size_t used;
    };

    // Written for each event, so in cache lines that the builder's thread does not read.
    alignas(xmlThreadAlignment) Block m_block; // the block that events are added to
    std::size_t m_used = 0;                    // used bytes of it

    alignas(xmlThreadAlignment) XmlTreeBuilder &m_builder;
    std::thread m_thread;
    bool m_hasNoThread = false;
    std::atomic<bool> m_failed = false;

    std::mutex m_mutex; // guards all members below
    std::condition_variable m_changed;
    std::deque<Filled> m_filled;
    std::vector<Block> m_spare;
    bool m_isWorking = false; // on a block taken from the filled ones
    bool m_ended = false;
};

} // namespace vantrell

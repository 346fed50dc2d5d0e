#include "xml/XmlEvents.h"

#include <algorithm>
#include <exception>
#include <new>
#include <system_error>
#include <utility>

namespace vantrell
{

namespace
{

constexpr std::size_t eventBlockSize = std::size_t(1) << 17;
constexpr std::size_t firstBlockSize = std::size_t(1) << 12; // grows, as most texts are small
constexpr std::size_t mostFilled = 8;                        // blocks; then the parser waits

} // namespace

XmlEvents::XmlEvents(XmlTreeBuilder &builder)
    : m_block(firstBlockSize)
    , m_builder(builder)
{
    m_spare.reserve(mostFilled); // so that the thread can give a block back whatever memory there is
}

XmlEvents::~XmlEvents()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

/// Makes room for that many bytes in the block.
void XmlEvents::nextBlock(std::size_t size)
{
    const bool grows = m_block.size() < eventBlockSize && m_used + size <= eventBlockSize;
    if (grows && !m_thread.joinable()) {
        m_block.resize(std::min(eventBlockSize, std::max(m_block.size() * 4, m_used + size)));
        return;
    }
    handOver();
    if (m_block.size() < std::max(size, eventBlockSize))
        m_block.resize(std::max(size, eventBlockSize));
}

/// Passes the block to the thread; the next one may have another size, also 0.
void XmlEvents::handOver()
{
    if (!m_thread.joinable() && !m_hasNoThread) {
        try {
            m_thread = std::thread([this] { work(); });
        } catch (const std::system_error &) {
            m_hasNoThread = true;
        }
    }
    const std::size_t used = std::exchange(m_used, 0);
    if (m_hasNoThread) {
        replay(m_block, used);
        return;
    }
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_filled.size() < mostFilled; });
        m_filled.push_back({std::move(m_block), used});
        m_block.clear();
        if (!m_spare.empty()) {
            m_block = std::move(m_spare.back());
            m_spare.pop_back();
        }
    }
    m_changed.notify_all();
    if (m_failed)
        throw std::bad_alloc();
}

void XmlEvents::finish()
{
    if (!m_thread.joinable()) {
        replay(m_block, std::exchange(m_used, 0));
        return;
    }
    handOver();
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_filled.empty() && !m_isWorking; });
    if (m_failed)
        throw std::bad_alloc();
}

/// The builder's thread.
void XmlEvents::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_ended || !m_filled.empty(); });
        if (m_ended)
            return;
        Filled filled = std::move(m_filled.front());
        m_filled.pop_front();
        m_isWorking = true;
        lock.unlock();
        m_changed.notify_all();
        try {
            if (!m_failed)
                replay(filled.block, filled.used);
        } catch (const std::exception &) {
            m_failed = true;
        }
        lock.lock();
        m_isWorking = false;
        if (m_spare.size() < mostFilled && filled.block.size() == eventBlockSize && !m_failed)
            m_spare.push_back(std::move(filled.block));
        m_changed.notify_all();
    }
}

void XmlEvents::replay(const Block &block, std::size_t used)
{
    const char *at = block.data();
    const char *const end = at + used;
    while (at != end) {
        Event event;
        std::memcpy(&event, at, sizeof event);
        at += sizeof event;
        std::uint64_t size = 0;
        const bool hasText = Kind(event.kind) == Kind::Text || Kind(event.kind) == Kind::CData ||
                             Kind(event.kind) == Kind::Attribute || Kind(event.kind) == Kind::Namespace ||
                             Kind(event.kind) == Kind::Comment || Kind(event.kind) == Kind::Instruction;
        if (hasText) {
            std::memcpy(&size, at, sizeof size);
            at += sizeof size;
        }
        tell(m_builder, event, {at, std::size_t(size)});
        at += size;
    }
}

void XmlEvents::tell(XmlTreeBuilder &builder, const Event &event, std::string_view text)
{
    switch (Kind(event.kind)) {
    case Kind::StartElement:
        builder.startElement(event.number);
        break;
    case Kind::EndElement:
        builder.endElement();
        break;
    case Kind::Namespace:
        builder.addNamespace(event.number, text);
        break;
    case Kind::Attribute:
        builder.addAttribute(event.number, text);
        break;
    case Kind::Space:
        builder.setSpace(event.number != 0);
        break;
    case Kind::Text:
        builder.addText(text);
        break;
    case Kind::CData:
        builder.addCData(text);
        break;
    case Kind::Comment:
        builder.addComment(text);
        break;
    case Kind::BareInstruction:
        builder.addInstruction(event.number);
        break;
    case Kind::Instruction:
        builder.addInstruction(event.number, text);
        break;
    case Kind::Doctype:
        builder.addDoctype();
        break;
    case Kind::KeepSpace:
        builder.keepSpace();
        break;
    }
}

} // namespace vantrell

#include "journal/JournalFile.h"

#include "support/files/PackedBytes.h"

#include <xxhash.h>

namespace vantrell::JournalFile
{

namespace
{

constexpr std::string_view mark = "VantrellJ";
constexpr char version = 1;
constexpr std::size_t lengthSize = 8;
constexpr std::size_t checksumSize = 8;

enum class Type : std::uint8_t { Header = 1, Step, Digest, Saved };

std::string framed(std::string content)
{
    PackedWriter frame;
    frame.fixed(content.size());
    frame.fixed(XXH3_64bits(content.data(), content.size()));
    return frame.take() + content;
}

PackedWriter beginRecord(Type type)
{
    PackedWriter out;
    out.number(std::uint64_t(type));
    return out;
}

void write(PackedWriter &out, const std::optional<FileStamp> &stamp)
{
    out.number(stamp ? 1 : 0);
    if (!stamp)
        return;
    out.number(stamp->device);
    out.number(stamp->number);
    out.number(std::uint64_t(stamp->size));
    out.number(std::uint64_t(stamp->seconds));
    out.number(std::uint64_t(stamp->nanoseconds));
}

std::optional<FileStamp> readStamp(PackedReader &in)
{
    if (in.number() == 0)
        return std::nullopt;
    FileStamp stamp;
    stamp.device = in.number();
    stamp.number = in.number();
    stamp.size = std::int64_t(in.number());
    stamp.seconds = std::int64_t(in.number());
    stamp.nanoseconds = std::int64_t(in.number());
    return stamp;
}

/// The content of the next whole record, or nothing.
std::optional<std::string_view> nextRecord(std::string_view &rest)
{
    if (rest.size() < lengthSize + checksumSize)
        return std::nullopt;
    PackedReader frame(rest);
    const std::uint64_t length = frame.fixed();
    const std::uint64_t checksum = frame.fixed();
    const std::string_view behind = rest.substr(lengthSize + checksumSize);
    if (length == 0 || length > behind.size())
        return std::nullopt;
    const std::string_view content = behind.substr(0, std::size_t(length));
    if (XXH3_64bits(content.data(), content.size()) != checksum)
        return std::nullopt;
    rest = behind.substr(std::size_t(length));
    return content;
}

bool readHeader(std::string_view record, JournalHeader &header)
{
    PackedReader in(record);
    const bool isHeader = Type(in.number()) == Type::Header;
    header.projectPath = in.text();
    header.typeName = in.text();
    header.file = readStamp(in);
    header.elements = std::uint32_t(in.number());
    return isHeader && in.isOk() && !header.projectPath.isEmpty();
}

bool readRecord(std::string_view record, JournalContents &contents)
{
    PackedReader in(record);
    switch (Type(in.number())) {
    case Type::Step: {
        JournalStep step;
        step.time = std::int64_t(in.number());
        step.changes = std::uint32_t(in.number());
        step.content = in.rest();
        contents.steps.push_back(std::move(step));
        break;
    }
    case Type::Digest: {
        const std::string_view digest = in.bytes();
        contents.digest = QByteArray(digest.data(), qsizetype(digest.size()));
        break;
    }
    case Type::Saved:
        contents.saved = readStamp(in);
        break;
    default:
        return false;
    }
    return in.isOk();
}

} // namespace

std::string beginning(const JournalHeader &header)
{
    PackedWriter out = beginRecord(Type::Header);
    out.text(header.projectPath);
    out.text(header.typeName);
    write(out, header.file);
    out.number(header.elements);
    return std::string(mark) + version + framed(out.take());
}

std::string record(const JournalStep &step)
{
    PackedWriter out = beginRecord(Type::Step);
    out.number(std::uint64_t(step.time));
    out.number(step.changes);
    return framed(out.take() + step.content);
}

std::string digestRecord(const QByteArray &digest)
{
    PackedWriter out = beginRecord(Type::Digest);
    out.bytes({digest.constData(), std::size_t(digest.size())});
    return framed(out.take());
}

std::string savedRecord(const FileStamp &saved)
{
    PackedWriter out = beginRecord(Type::Saved);
    write(out, saved);
    return framed(out.take());
}

Fault read(std::string_view bytes, JournalContents &contents)
{
    contents = JournalContents();
    const std::string_view begins = bytes.substr(0, mark.size());
    if (begins != mark.substr(0, begins.size()))
        return Fault::Damaged;
    if (bytes.size() <= mark.size())
        return Fault::Empty;
    if (bytes[mark.size()] != version)
        return Fault::Foreign;
    std::string_view rest = bytes.substr(mark.size() + 1);
    const bool isCutOff = rest.size() < lengthSize + checksumSize ||
                          PackedReader(rest).fixed() > rest.size() - lengthSize - checksumSize;
    const std::optional<std::string_view> header = nextRecord(rest);
    if (!header)
        return isCutOff ? Fault::Empty : Fault::Damaged;
    if (!readHeader(*header, contents.header))
        return Fault::Damaged;
    while (const std::optional<std::string_view> record = nextRecord(rest)) {
        if (!readRecord(*record, contents))
            return Fault::Damaged;
    }
    contents.isTorn = !rest.empty();
    return Fault::None;
}

} // namespace vantrell::JournalFile

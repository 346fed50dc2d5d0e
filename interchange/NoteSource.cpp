#include "interchange/NoteSource.h"

#include "interchange/notes/NoteReader.h"
#include "interchange/notes/NoteText.h"
#include "support/files/FileUtilities.h"
#include "support/log/QVException.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace vantrell
{

namespace
{

/// The beginning of a file as text; nothing when it is none or cannot be read.
std::optional<QString> beginningOf(const QString &path)
{
    constexpr qint64 beginning = 8192; // bytes
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QString text = NoteText::decode(file.read(beginning)).text;
    const auto controls = std::count_if(text.begin(), text.end(), [](QChar c) {
        return c.unicode() < 0x20 && c != u'\t' && c != u'\n' && c != u'\r' && c != u'\f' && c != u'\v';
    });
    return controls * 50 > text.size() ? std::nullopt : std::optional(text);
}

Result<NoteSource> sourceOf(const QString &path, const QByteArray &bytes, const NoteRoleMemory &memory)
{
    NoteSource source{path, bytes, {}, nullptr};
    const bool isRead = guarded("NoteSource", [&] {
        auto list = std::make_shared<NoteList>(NoteReader::read(bytes));
        source.choices = memory.choicesFor(list->headers);
        if (!source.choices.empty())
            *list = NoteReader::readAgain(*list, bytes, source.choices);
        source.list = std::move(list);
    });
    if (!isRead)
        return Failure{QStringLiteral("There is not enough memory to read the list.")};
    return source;
}

} // namespace

Result<NoteSource> NoteSource::ofFile(const QString &path, const NoteRoleMemory &memory)
{
    if (QFileInfo(path).isFile() && QFileInfo(path).isReadable() && !beginningOf(path))
        return Failure{QStringLiteral("The file is not a text.")};
    const Result<QByteArray> bytes = FileUtilities::readFile(path);
    if (!bytes)
        return bytes.failure();
    return sourceOf(path, bytes.value(), memory);
}

Result<NoteSource> NoteSource::ofText(const QString &text, const NoteRoleMemory &memory)
{
    return sourceOf(QString(), text.toUtf8(), memory);
}

QString NoteSource::name() const
{
    return path.isNull() ? QString() : QFileInfo(path).fileName();
}

bool NoteSource::isUsable() const
{
    return !list->rows.empty() || (!path.isNull() && list->columns.size() > 1 && !list->unreadable.empty());
}

bool isNoteFile(const QString &path)
{
    const auto endsIn = [&path](const QString &extension) {
        return path.endsWith(extension, Qt::CaseInsensitive);
    };
    const std::optional<QString> text = endsIn(QStringLiteral(".fcp")) ? std::nullopt : beginningOf(path);
    if (!text || text->contains(QStringLiteral("<xmeml")))
        return false;
    return !endsIn(QStringLiteral(".xml")) || text->contains(QStringLiteral("StreamItems")) ||
           text->contains(QStringLiteral("<fcpxml"));
}

} // namespace vantrell

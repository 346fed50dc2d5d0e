#include "markers/MarkerComment.h"

#include "markers/MarkerKeys.h"

#include <array>

namespace vantrell::MarkerComment
{

namespace
{

struct Flag {
    TypedKey<std::int64_t> key;
    QString name;
    QString tag;
    QString spacedTag; ///< with its leading blank
    QString writeTest; ///< what a comment holds that needs no tag any more
};

Flag flagOf(TypedKey<std::int64_t> key, const QString &tag, bool testsBlank)
{
    const QString spaced = QLatin1Char(' ') + tag;
    return {key, key.text(), tag, spaced, testsBlank ? spaced : tag};
}

const Flag &chapter()
{
    static const Flag flag = flagOf(MarkerKey::chapter, QStringLiteral("<CHAPTER>"), false);
    return flag;
}

const Flag &compression()
{
    static const Flag flag = flagOf(MarkerKey::compression, QStringLiteral("<COMPRESSION>"), true);
    return flag;
}

const Flag &scoring()
{
    static const Flag flag = flagOf(MarkerKey::scoring, QStringLiteral("<SCORING>"), true);
    return flag;
}

/// The flags in the order in which they are put in front of a comment.
std::array<const Flag *, 3> flagsAsWritten()
{
    return {&chapter(), &scoring(), &compression()};
}

const Flag *flagOfKey(const QString &key)
{
    for (const Flag *flag : flagsAsWritten()) {
        if (flag->name == key)
            return flag;
    }
    return nullptr;
}

QString tagPair(const QString &key, const QString &value)
{
    return QLatin1Char('<') + key + QLatin1Char('>') + value + QStringLiteral("<_") + key + QLatin1Char('>');
}

void readCustomField(QString &comment, RowRecord &record)
{
    static const QString opening = QStringLiteral("<QVCUSTOM_");
    static const QString closing = QStringLiteral("<_QVCUSTOM_");
    const qsizetype start = comment.indexOf(opening);
    if (start < 0)
        return;
    const qsizetype startEnd = comment.indexOf(QLatin1Char('>'), start + opening.size());
    const qsizetype end = comment.indexOf(closing);
    const qsizetype endEnd = end < 0 ? -1 : comment.indexOf(QLatin1Char('>'), end + closing.size());
    if (startEnd < 0 || endEnd < 0 || end <= startEnd)
        return;
    const RecordKey key(comment.sliced(start + 1, startEnd - start - 1));
    record.set(key, comment.sliced(startEnd + 1, end - startEnd - 1));
    comment = comment.first(start) + comment.sliced(endEnd + 1);
}

} // namespace

bool isKeptInComment(const QString &key)
{
    return key == QStringLiteral("comment") || flagOfKey(key) || key.startsWith(MarkerKey::customPrefix);
}

void read(const QString &comment, RowRecord &record)
{
    if (!comment.contains(QLatin1Char('<'))) {
        record.set(MarkerKey::comment, comment);
        return;
    }
    QString text = comment;
    for (const Flag *flag : {&chapter(), &compression(), &scoring()}) {
        if (text.contains(flag->tag)) {
            record.set(flag->key, 1);
            text.remove(flag->spacedTag);
        }
    }
    readCustomField(text, record);
    record.set(MarkerKey::comment, text);
}

QString textForEdit(RowRecord &record, const QString &key, const QString &value)
{
    QString text = key == QStringLiteral("comment") ? value : record.get(MarkerKey::comment);
    for (const Flag *flag : flagsAsWritten()) {
        if (record.get(flag->key) == 1)
            text.prepend(flag->spacedTag);
    }
    for (std::size_t i = 0; i < record.size(); ++i) {
        const QString custom = record.keyAt(i).text();
        if (custom.startsWith(MarkerKey::customPrefix) && custom != key)
            text += tagPair(custom, record.text(record.keyAt(i)));
    }
    if (const Flag *flag = flagOfKey(key)) {
        const bool on = value == QStringLiteral("1");
        record.set(flag->key, on ? 1 : 0);
        if (!on)
            text.remove(flag->spacedTag);
        else if (!text.contains(flag->writeTest))
            text.prepend(flag->spacedTag);
    } else if (key.startsWith(MarkerKey::customPrefix)) {
        record.set(RecordKey(key), value);
        if (!value.isEmpty())
            text += tagPair(key, value);
    }
    return text;
}

} // namespace vantrell::MarkerComment

#include "support/widgets/ShownText.h"

#include "support/widgets/CoreTexts.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace vantrell
{

namespace
{

/// A text with places for others.
struct Pattern {
    const char *source = nullptr;
    QStringList parts;        ///< what stands before, between and behind the places
    std::vector<int> numbers; ///< of the places, in their order
    qsizetype weight = 0;     ///< how much the parts say: their letters, and more for quotation marks
};

struct Match {
    const Pattern *pattern = nullptr;
    QStringList arguments; ///< in the order of the places
};

bool hasLetter(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

Pattern patternOf(const char *source)
{
    Pattern pattern;
    pattern.source = source;
    const QString text = QString::fromUtf8(source);
    QString part;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int number = text[i] == u'%' && i + 1 < text.size() ? text[i + 1].digitValue() : -1;
        if (number > 0) {
            pattern.parts.append(std::exchange(part, QString()));
            pattern.numbers.push_back(number);
            ++i;
        } else {
            part += text[i];
            constexpr qsizetype ofMark = 5;
            pattern.weight += text[i].isLetter() ? 1 : text[i] == u'“' || text[i] == u'"' ? ofMark : 0;
        }
    }
    pattern.parts.append(part);
    return pattern;
}

/// What stands in the places; nothing when the text does not follow the pattern.
std::optional<QStringList> argumentsOf(const Pattern &pattern, const QString &text)
{
    const QString &last = pattern.parts.last();
    if (!text.startsWith(pattern.parts.first()) || !text.endsWith(last))
        return std::nullopt;
    QStringList arguments;
    qsizetype position = pattern.parts.first().size();
    const qsizetype end = text.size() - last.size();
    for (qsizetype i = 1; i < pattern.parts.size(); ++i) {
        const bool isLast = i + 1 == pattern.parts.size();
        const qsizetype next = isLast ? end : text.indexOf(pattern.parts[i], position);
        if (next < position || next > end)
            return std::nullopt;
        arguments.append(text.mid(position, next - position));
        position = next + pattern.parts[i].size();
    }
    return arguments;
}

/// The texts of one context.
class Texts
{
public:
    Texts(const char *context, std::span<const char *const> sources)
        : m_context(context)
    {
        for (const char *const source : sources) {
            Pattern pattern = patternOf(source);
            if (pattern.numbers.empty())
                m_whole.insert(pattern.parts.first(), source);
            else
                m_patterns.push_back(std::move(pattern));
        }
        std::stable_sort(m_patterns.begin(), m_patterns.end(),
                         [](const Pattern &a, const Pattern &b) { return a.weight > b.weight; });
    }

    QString translated(const char *source) const { return QCoreApplication::translate(m_context, source); }

    /// Null for a text that is not among them.
    const char *whole(const QString &text) const { return m_whole.value(text, nullptr); }

    /// By the pattern that says most. One that says little holds numbers only, if so wanted: a name might
    /// look like it.
    std::optional<Match> match(const QString &text, bool isStrict) const
    {
        constexpr qsizetype little = 8;
        for (const Pattern &pattern : m_patterns) {
            const std::optional<QStringList> arguments = argumentsOf(pattern, text);
            if (!arguments)
                continue;
            if (isStrict && pattern.weight < little &&
                std::any_of(arguments->begin(), arguments->end(), hasLetter))
                continue;
            return Match{&pattern, *arguments};
        }
        return std::nullopt;
    }

    /// The translation with these in its places.
    QString completed(const Pattern &pattern, const QStringList &arguments) const
    {
        const Pattern to = patternOf(translated(pattern.source).toUtf8().constData());
        QString text = to.parts.first();
        for (std::size_t i = 0; i < to.numbers.size(); ++i) {
            const auto place = std::find(pattern.numbers.begin(), pattern.numbers.end(), to.numbers[i]);
            if (place != pattern.numbers.end())
                text += arguments[qsizetype(place - pattern.numbers.begin())];
            text += to.parts[qsizetype(i) + 1];
        }
        return text;
    }

private:
    const char *m_context;
    QHash<QString, const char *> m_whole;
    std::vector<Pattern> m_patterns; ///< those that say most first
};

QString simpleText(const Texts &texts, const QString &english)
{
    if (const char *const source = texts.whole(english))
        return texts.translated(source);
    const std::optional<Match> match = texts.match(english, false);
    return match ? texts.completed(*match->pattern, match->arguments) : english;
}

const Texts &messages()
{
    static const Texts texts("Message", CoreTexts::messages());
    return texts;
}

QString messagePart(const QString &english);

/// Null for what is no size.
QString sizeText(const QString &english)
{
    static const Texts texts("Unit", CoreTexts::units());
    static const QRegularExpression size(QStringLiteral("^([0-9]+)(?:\\.([0-9]+))? ([KMG]?B)$"));
    const QRegularExpressionMatch match = size.match(english);
    if (!match.hasMatch())
        return QString();
    const QString fraction = match.hasCaptured(2) ? QLocale().decimalPoint() + match.captured(2) : QString();
    return match.captured(1) + fraction + u' ' + simpleText(texts, match.captured(3));
}

/// A name of a single word is never taken for a text of the program.
QString argumentText(const QString &english)
{
    if (!english.contains(u' '))
        return english;
    const QString size = sizeText(english);
    return size.isNull() ? messagePart(english) : size;
}

/// A line, a sentence or a part of one; null when it is not known.
QString knownPart(const QString &english)
{
    const Texts &texts = messages();
    if (const char *const source = texts.whole(english))
        return texts.translated(source);
    const std::optional<Match> match = texts.match(english, true);
    if (!match)
        return QString();
    QStringList arguments;
    for (const QString &argument : match->arguments)
        arguments.append(argumentText(argument));
    return texts.completed(*match->pattern, arguments);
}

QString messagePart(const QString &english)
{
    if (const QString known = knownPart(english); !known.isNull())
        return known;
    // Several lines, or sentences, the first of which is known.
    for (const QString &end : {QStringLiteral("\n"), QStringLiteral(". ")}) {
        for (qsizetype i = english.indexOf(end); i >= 0; i = english.indexOf(end, i + 1)) {
            const qsizetype length = i + (end.size() > 1 ? 1 : 0);
            const QString first =
                end.size() > 1 ? knownPart(english.left(length)) : messagePart(english.left(length));
            if (!first.isNull())
                return first + english[length] + messagePart(english.mid(length + 1));
        }
    }
    return english;
}

} // namespace

QString shownMessage(const QString &english)
{
    return english.isEmpty() ? english : messagePart(english);
}

QString shownSize(const QString &english)
{
    const QString size = sizeText(english);
    return size.isNull() ? english : size;
}

QString shownColumn(const QString &english)
{
    static const Texts texts("Column", CoreTexts::columns());
    return simpleText(texts, english);
}

QString shownValue(const QString &english)
{
    static const Texts texts("Value", CoreTexts::values());
    return simpleText(texts, english);
}

QString shownEdit(const QString &english)
{
    static const Texts texts("Edit", CoreTexts::edits());
    const std::optional<Match> undone = texts.match(english, false); // as a journal names it
    return undone ? texts.completed(*undone->pattern, {shownEdit(undone->arguments.first())})
                  : simpleText(texts, english);
}

QString shownDifference(const QString &english)
{
    static const Texts texts("Difference", CoreTexts::differences());
    QStringList parts = english.split(QStringLiteral(", "));
    for (QString &part : parts)
        part = simpleText(texts, part);
    return parts.join(QStringLiteral(", "));
}

} // namespace vantrell

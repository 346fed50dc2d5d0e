#include "rows/RowSearch.h"

#include "support/threads/MainThread.h"

#include <QElapsedTimer>
#include <QHash>
#include <QStringMatcher>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace vantrell
{

namespace
{

/// Between the texts of a row: no text that is typed holds it.
constexpr char16_t textSeparator = u'\n';
constexpr std::size_t rowsBetweenLooks = 64; // at the clock
constexpr std::size_t rowsLeftOut = 16;      // at most, for a look ahead to be quicker than another one

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// Most texts need no more than small letters.
void appendFolded(std::u16string &texts, const QString &text)
{
    if (isAscii(text)) {
        for (const QChar c : text) {
            const char16_t unit = c.unicode();
            texts.push_back(unit >= u'A' && unit <= u'Z' ? char16_t(unit + (u'a' - u'A')) : unit);
        }
    } else {
        texts += RowSearch::folded(text).toStdU16String();
    }
    texts.push_back(textSeparator);
}

} // namespace

class RowSearch::Index
{
public:
    explicit Index(Texts texts)
        : m_readTexts(std::move(texts))
    {
    }

    // Main thread

    std::size_t size() const { return m_rows.size(); }

    void add(const RowRecord &row)
    {
        m_list.clear();
        m_readTexts(row, m_list);
        for (const QString &text : std::as_const(m_list))
            appendFolded(m_texts, text);
        m_rows.push_back(&row);
        m_ends.push_back(m_texts.size());
    }

    bool holds(const QStringMatcher &matcher, const RowRecord &row)
    {
        const std::size_t number = numberOf(row);
        if (number == m_rows.size())
            return isHeldByOther(matcher, row);
        const std::size_t begin = number == 0 ? 0 : m_ends[number - 1];
        return matcher.indexIn(
                   QStringView(m_texts).sliced(qsizetype(begin), qsizetype(m_ends[number] - begin))) >= 0;
    }

    void forget()
    {
        m_rows = {};
        m_ends = {};
        m_texts = {};
        m_numbers = {};
        m_numbered = m_next = 0;
    }

    /// A row of which nothing is kept. Any thread.
    bool isHeldByOther(const QStringMatcher &matcher, const RowRecord &row) const
    {
        QStringList list;
        m_readTexts(row, list);
        std::u16string texts;
        for (const QString &text : std::as_const(list))
            appendFolded(texts, text);
        return matcher.indexIn(QStringView(texts)) >= 0;
    }

private:
    /// The number of rows for one that is not kept. Most rows come in their order, with few left out.
    std::size_t numberOf(const RowRecord &row)
    {
        if (!m_rows.empty() && m_rows.front() == &row)
            m_next = 0;
        const std::size_t last = std::min(m_next + rowsLeftOut, m_rows.size());
        for (std::size_t number = m_next; number < last; ++number) {
            if (m_rows[number] == &row) {
                m_next = number + 1;
                return number;
            }
        }
        for (; m_numbered < m_rows.size(); ++m_numbered)
            m_numbers.insert(m_rows[m_numbered], m_numbered);
        const std::size_t number = m_numbers.value(&row, m_rows.size());
        m_next = number + 1;
        return number;
    }

    const Texts m_readTexts;
    QStringList m_list; // keeps its memory
    std::vector<const RowRecord *> m_rows;
    std::vector<std::size_t> m_ends; // of their texts in all texts
    std::u16string m_texts;
    QHash<const RowRecord *, std::size_t> m_numbers; // made when a row comes out of order
    std::size_t m_numbered = 0;
    std::size_t m_next = 0; // number of the row that is expected
};

RowSearch::RowSearch(Texts texts)
    : m_index(std::make_shared<Index>(std::move(texts)))
{
}

void RowSearch::setText(const QString &text)
{
    m_folded = folded(text);
}

RowSearch::Condition RowSearch::condition() const
{
    return [index = m_index, matcher = QStringMatcher(m_folded)](const RowRecord &row) {
        return MainThread::isMainThread() ? index->holds(matcher, row) : index->isHeldByOther(matcher, row);
    };
}

bool RowSearch::prepare(const RowList &rows, std::chrono::milliseconds time)
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (m_index->size() < rows.size()) {
        m_index->add(*rows[m_index->size()]);
        if (m_index->size() % rowsBetweenLooks == 0 && elapsed.hasExpired(time.count()))
            break;
    }
    return m_index->size() >= rows.size();
}

void RowSearch::forget()
{
    m_index->forget();
}

QString RowSearch::folded(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C).toCaseFolded();
}

} // namespace vantrell

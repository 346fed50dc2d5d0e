#include "rows/RowSearch.h"

#include "rows/TextBytes.h"
#include "support/threads/MainThread.h"

#include <QElapsedTimer>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <utility>

namespace vantrell
{

namespace
{

constexpr std::size_t rowsBetweenLooks = 64; // at the clock
constexpr std::size_t rowsLeftOut = 16;      // at most, for a look ahead to be quicker than another one
constexpr std::size_t mostResults = 24;      // kept, each a bit for every row and every text

} // namespace

/// The numbers of rows by their addresses.
class RowNumbers
{
public:
    static constexpr std::uint32_t none = RowSearch::nowhere;

    std::size_t size() const { return m_size; }

    void add(const std::vector<const RowRecord *> &rows)
    {
        const std::size_t slots = std::bit_ceil(2 * rows.size() + 1);
        if (slots > m_slots.size()) {
            m_slots.assign(slots, none);
            m_size = 0;
        }
        for (; m_size < rows.size(); ++m_size) {
            std::size_t slot = slotOf(rows[m_size]);
            while (m_slots[slot] != none)
                slot = next(slot);
            m_slots[slot] = std::uint32_t(m_size);
        }
    }

    std::uint32_t find(const std::vector<const RowRecord *> &rows, const RowRecord *row) const
    {
        if (m_slots.empty())
            return none;
        for (std::size_t slot = slotOf(row); m_slots[slot] != none; slot = next(slot)) {
            if (rows[m_slots[slot]] == row)
                return m_slots[slot];
        }
        return none;
    }

private:
    std::size_t next(std::size_t slot) const { return (slot + 1) & (m_slots.size() - 1); }
    std::size_t slotOf(const RowRecord *row) const
    {
        constexpr std::uint64_t spread = 0x9e3779b97f4a7c15;
        return std::size_t(std::uint64_t(std::uintptr_t(row)) * spread >> 32) & (m_slots.size() - 1);
    }

    std::vector<std::uint32_t> m_slots;
    std::size_t m_size = 0;
};

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
        m_results.clear();
        m_texts.clear();
        m_readTexts(row, m_texts);
        for (const QString &text : std::as_const(m_texts))
            m_rowTexts.push_back(numberOf(text));
        m_rows.push_back(&row);
        m_rowEnds.push_back(std::uint32_t(m_rowTexts.size()));
        m_lastTexts.swap(m_texts);
    }

    void shrink()
    {
        m_bytes.shrink_to_fit();
        m_ends.shrink_to_fit();
        m_rows.shrink_to_fit();
        m_rowTexts.shrink_to_fit();
        m_rowEnds.shrink_to_fit();
        m_lastTexts = {};
    }

    void forget()
    {
        m_bytes = {};
        m_ends = {};
        m_rows = {};
        m_rowTexts = {};
        m_rowEnds = {};
        m_lastTexts = {};
        m_numbers = {};
        m_results = {};
        m_next = 0;
    }

    /// Of the row; `nowhere` when it is not kept. Most rows come in their order, with few left out.
    std::uint32_t placeOf(const RowRecord &row)
    {
        if (!m_rows.empty() && m_rows.front() == &row)
            m_next = 0;
        const std::size_t last = std::min(m_next + rowsLeftOut, m_rows.size());
        for (std::size_t place = m_next; place < last; ++place) {
            if (m_rows[place] == &row) {
                m_next = place + 1;
                return std::uint32_t(place);
            }
        }
        m_numbers.add(m_rows);
        const std::uint32_t place = m_numbers.find(m_rows, &row);
        if (place != nowhere)
            m_next = place + 1;
        return place;
    }

    const Hits &find(const std::string &text)
    {
        auto known = std::find_if(m_results.rbegin(), m_results.rend(),
                                  [&](const Result &result) { return result.text == text; });
        if (known != m_results.rend()) {
            std::rotate(known.base() - 1, known.base(), m_results.end());
            return m_results.back().rows;
        }
        Result result{.text = text, .texts = Hits(m_ends.size()), .rows = Hits(m_rows.size())};
        if (const Result *const wider = widerThan(text))
            narrow(*wider, result);
        else
            search(result);
        std::uint32_t number = 0;
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            bool isHit = text.empty();
            for (; number < m_rowEnds[row]; ++number)
                isHit = isHit || result.texts[m_rowTexts[number]];
            result.rows[row] = isHit;
        }
        if (m_results.size() == mostResults)
            m_results.erase(m_results.begin());
        m_results.push_back(std::move(result));
        return m_results.back().rows;
    }

    /// Of a row of which nothing is kept. Any thread.
    bool holds(const RowRecord &row, const QString &text) const
    {
        QStringList list;
        m_readTexts(row, list);
        return text.isEmpty() || std::any_of(list.cbegin(), list.cend(), [&text](const QString &one) {
                   return folded(one).contains(text);
               });
    }

private:
    /// What holds a text.
    struct Result {
        std::string text;
        Hits texts = {}; ///< by number
        Hits rows = {};
        std::size_t count = 0; ///< of texts
    };

    /// Of a text that is kept from now on. What rows have in common, such as the name of their sequence, is
    /// kept once for rows that follow each other.
    std::uint32_t numberOf(const QString &text)
    {
        for (qsizetype i = 0; i < m_lastTexts.size(); ++i) {
            if (m_lastTexts[i].constData() == text.constData() && m_lastTexts[i].size() == text.size())
                return m_rowTexts[m_rowEnds.back() - std::size_t(m_lastTexts.size() - i)];
        }
        if (!TextBytes::appendSmallAscii(m_bytes, text))
            TextBytes::append(m_bytes, folded(text));
        m_bytes.push_back(TextBytes::none);
        m_ends.push_back(m_bytes.size());
        return std::uint32_t(m_ends.size() - 1);
    }

    /// The smallest result that has all that hold the text; null when a look at everything is as quick.
    const Result *widerThan(const std::string &text) const
    {
        const Result *best = nullptr;
        for (const Result &result : m_results) {
            const bool isWider = !result.text.empty() && result.count < m_ends.size() / 4 &&
                                 text.find(result.text) != text.npos;
            if (isWider && (!best || result.count < best->count))
                best = &result;
        }
        return best;
    }

    void search(Result &result) const
    {
        if (result.text.empty())
            return;
        std::size_t number = 0;
        std::size_t from = 0;
        while (const char *const found = find(result.text, from, m_bytes.size())) {
            const auto offset = std::size_t(found - m_bytes.data());
            while (m_ends[number] <= offset)
                ++number;
            result.texts[number] = true;
            ++result.count;
            from = m_ends[number++];
        }
    }

    void narrow(const Result &wider, Result &result) const
    {
        for (std::size_t number = 0; number < m_ends.size(); ++number) {
            const std::size_t begin = number > 0 ? m_ends[number - 1] : 0;
            if (wider.texts[number] && find(result.text, begin, m_ends[number])) {
                result.texts[number] = true;
                ++result.count;
            }
        }
    }

    /// The first place in that part of the texts; null for none.
    const char *find(const std::string &text, std::size_t begin, std::size_t end) const
    {
        return static_cast<const char *>(
            memmem(m_bytes.data() + begin, end - begin, text.data(), text.size()));
    }

    const Texts m_readTexts;
    std::string m_bytes;             // of all texts, each followed by one that is none
    std::vector<std::size_t> m_ends; // of the texts, by number
    std::vector<const RowRecord *> m_rows;
    std::vector<std::uint32_t> m_rowTexts; // the numbers of the rows' texts
    std::vector<std::uint32_t> m_rowEnds;  // of their numbers
    QStringList m_texts;                   // keeps its memory
    QStringList m_lastTexts;               // of the row that was added last
    RowNumbers m_numbers;                  // made when a row comes out of order
    std::size_t m_next = 0;                // place of the row that is expected
    std::vector<Result> m_results;         // the one used last at the end
};

RowSearch::RowSearch(Texts texts)
    : m_index(std::make_shared<Index>(std::move(texts)))
{
}

void RowSearch::setText(const QString &text)
{
    m_folded = folded(text);
    m_bytes.clear();
    TextBytes::append(m_bytes, m_folded);
}

RowSearch::Condition RowSearch::condition() const
{
    return [index = m_index, folded = m_folded, bytes = m_bytes](const RowRecord &row) {
        const std::uint32_t place = MainThread::isMainThread() ? index->placeOf(row) : nowhere;
        return place == nowhere ? index->holds(row, folded) : index->find(bytes)[place];
    };
}

RowSearch::Places RowSearch::placesOf(const RowList &rows) const
{
    Places places;
    places.reserve(rows.size());
    for (const RowRecordPtr &row : rows)
        places.push_back(m_index->placeOf(*row));
    return places;
}

const RowSearch::Hits &RowSearch::hits() const
{
    return m_index->find(m_bytes);
}

bool RowSearch::prepare(const RowList &rows, std::chrono::milliseconds time)
{
    if (m_index->size() >= rows.size())
        return true;
    QElapsedTimer elapsed;
    elapsed.start();
    while (m_index->size() < rows.size()) {
        m_index->add(*rows[m_index->size()]);
        if (m_index->size() % rowsBetweenLooks == 0 && elapsed.hasExpired(time.count()))
            break;
    }
    if (m_index->size() < rows.size())
        return false;
    m_index->shrink();
    return true;
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

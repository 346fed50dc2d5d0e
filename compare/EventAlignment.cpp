#include "compare/EventAlignment.h"

#include <QHash>

#include <algorithm>

namespace vantrell
{

namespace
{

/// Indexes of both lists, without the last.
struct Window {
    int beforeFrom;
    int beforeTo;
    int afterFrom;
    int afterTo;
};

class Aligner
{
public:
    Aligner(const std::vector<int> &before, const std::vector<int> &after)
        : m_before(before)
        , m_after(after)
    {
    }

    std::vector<std::pair<int, int>> run()
    {
        m_waiting.push_back({0, int(m_before.size()), 0, int(m_after.size())});
        while (!m_waiting.empty()) {
            Window window = m_waiting.back();
            m_waiting.pop_back();
            takeEnds(window);
            if (window.beforeFrom < window.beforeTo && window.afterFrom < window.afterTo)
                split(window);
        }
        std::sort(m_pairs.begin(), m_pairs.end());
        return std::move(m_pairs);
    }

private:
    void takeEnds(Window &w)
    {
        while (w.beforeFrom < w.beforeTo && w.afterFrom < w.afterTo &&
               m_before[std::size_t(w.beforeFrom)] == m_after[std::size_t(w.afterFrom)])
            m_pairs.emplace_back(w.beforeFrom++, w.afterFrom++);
        while (w.beforeFrom < w.beforeTo && w.afterFrom < w.afterTo &&
               m_before[std::size_t(w.beforeTo - 1)] == m_after[std::size_t(w.afterTo - 1)])
            m_pairs.emplace_back(--w.beforeTo, --w.afterTo);
    }

    /// At the longest run of values in the same order that each list holds once in the window.
    void split(const Window &w)
    {
        struct Places {
            int before = -1;
            int after = -1;
            bool isUnique = true;
        };
        QHash<int, Places> places;
        for (int i = w.beforeFrom; i < w.beforeTo; ++i) {
            Places &at = places[m_before[std::size_t(i)]];
            at.isUnique = at.before < 0;
            at.before = i;
        }
        for (int i = w.afterFrom; i < w.afterTo; ++i) {
            const auto at = places.find(m_after[std::size_t(i)]);
            if (at == places.end())
                continue;
            at->isUnique = at->isUnique && at->after < 0;
            at->after = i;
        }
        std::vector<std::pair<int, int>> anchors;
        for (int i = w.beforeFrom; i < w.beforeTo; ++i) {
            const Places at = places.value(m_before[std::size_t(i)]);
            if (at.isUnique && at.before == i && at.after >= 0)
                anchors.emplace_back(i, at.after);
        }
        anchors = longestAscending(anchors);
        if (anchors.empty())
            return;
        int before = w.beforeFrom;
        int after = w.afterFrom;
        for (const auto &[i, j] : anchors) {
            m_waiting.push_back({before, i, after, j});
            m_pairs.emplace_back(i, j);
            before = i + 1;
            after = j + 1;
        }
        m_waiting.push_back({before, w.beforeTo, after, w.afterTo});
    }

    static std::vector<std::pair<int, int>> longestAscending(const std::vector<std::pair<int, int>> &pairs)
    {
        std::vector<int> tails; // indexes of pairs: the lowest end of a run of each length
        std::vector<int> previous(pairs.size(), -1);
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            const auto at =
                std::lower_bound(tails.begin(), tails.end(), pairs[i].second, [&pairs](int tail, int value) {
                    return pairs[std::size_t(tail)].second < value;
                });
            if (at != tails.begin())
                previous[i] = *std::prev(at);
            if (at == tails.end())
                tails.push_back(int(i));
            else
                *at = int(i);
        }
        std::vector<std::pair<int, int>> run;
        for (int i = tails.empty() ? -1 : tails.back(); i >= 0; i = previous[std::size_t(i)])
            run.push_back(pairs[std::size_t(i)]);
        std::reverse(run.begin(), run.end());
        return run;
    }

    const std::vector<int> &m_before;
    const std::vector<int> &m_after;
    std::vector<Window> m_waiting;
    std::vector<std::pair<int, int>> m_pairs;
};

} // namespace

std::vector<std::pair<int, int>> alignedPairs(const std::vector<int> &before, const std::vector<int> &after)
{
    return Aligner(before, after).run();
}

} // namespace vantrell

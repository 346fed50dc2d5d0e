#include "compare/CutGuess.h"

#include "support/text/TextNumbers.h"

#include <QHash>

#include <algorithm>
#include <vector>

namespace vantrell
{

namespace
{

/// Frames, by menu item; -1 for item 0, which is no sequence.
std::vector<std::int64_t> durationsOf(const Menu &menu)
{
    std::vector<std::int64_t> durations(menu.size(), -1);
    for (std::size_t i = 1; i < menu.size(); ++i)
        durations[i] = integerValue(menu[i].element.childElement("duration").stringValue());
    return durations;
}

std::int64_t longestOf(const std::vector<std::int64_t> &durations)
{
    return durations.empty() ? 0 : std::max_element(durations.begin(), durations.end()) - durations.begin();
}

qsizetype commonStart(const QString &a, const QString &b)
{
    qsizetype length = 0;
    while (length < a.size() && length < b.size() && a[length] == b[length])
        ++length;
    return length;
}

} // namespace

CutGuess CutGuess::inProjects(const Menu &before, const Menu &after)
{
    const std::vector<std::int64_t> oldDurations = durationsOf(before);
    const std::vector<std::int64_t> newDurations = durationsOf(after);
    QHash<QString, std::int64_t> oldByName;
    for (std::size_t i = before.size(); i-- > 1;)
        oldByName.insert(before[i].title, std::int64_t(i));
    CutGuess guess;
    for (std::size_t i = 1; i < after.size(); ++i) {
        const std::int64_t old = oldByName.value(after[i].title);
        const bool isLonger = guess.after == 0 || newDurations[i] > newDurations[std::size_t(guess.after)];
        if (old != 0 && isLonger)
            guess = {old, std::int64_t(i)};
    }
    return guess.after != 0 ? guess : CutGuess{longestOf(oldDurations), longestOf(newDurations)};
}

CutGuess CutGuess::inProject(const Menu &menu)
{
    const std::vector<std::int64_t> durations = durationsOf(menu);
    CutGuess guess;
    guess.after = longestOf(durations);
    qsizetype best = -1;
    for (std::size_t i = 1; i < menu.size(); ++i) {
        if (std::int64_t(i) == guess.after)
            continue;
        const qsizetype common = commonStart(menu[i].title, menu[std::size_t(guess.after)].title);
        if (common > best || (common == best && durations[i] > durations[std::size_t(guess.before)])) {
            guess.before = std::int64_t(i);
            best = common;
        }
    }
    return guess;
}

} // namespace vantrell

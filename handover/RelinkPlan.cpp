#include "handover/RelinkPlan.h"

#include "xml/QVXMLParser.h"

#include <algorithm>

namespace vantrell
{

RelinkPlan::RelinkPlan(std::vector<RelinkMatch> matches)
{
    m_rows.reserve(matches.size());
    for (RelinkMatch &match : matches) {
        const bool isSingle = match.candidates.size() == 1;
        m_rows.push_back(
            {std::move(match), isSingle ? std::optional<std::size_t>(0) : std::nullopt, isSingle});
    }
}

const RelinkCandidate *RelinkPlan::chosen(std::size_t row) const
{
    const Row &file = m_rows[row];
    return file.chosen ? &file.match.candidates[*file.chosen] : nullptr;
}

void RelinkPlan::choose(std::size_t row, std::size_t candidate)
{
    Row &file = m_rows[row];
    if (candidate >= file.match.candidates.size())
        return;
    file.chosen = candidate;
    file.isRelinked = true;
}

void RelinkPlan::setRelinked(std::size_t row, bool isRelinked)
{
    Row &file = m_rows[row];
    const std::vector<RelinkCandidate> &candidates = file.match.candidates;
    if (candidates.empty())
        return;
    if (isRelinked && !file.chosen) {
        const auto closest = std::max_element(candidates.begin(), candidates.end(),
                                              [](const RelinkCandidate &a, const RelinkCandidate &b) {
                                                  return a.alikeFolders < b.alikeFolders;
                                              });
        file.chosen = std::size_t(closest - candidates.begin());
    }
    file.isRelinked = isRelinked;
}

std::size_t RelinkPlan::foundCount() const
{
    return std::size_t(std::count_if(m_rows.begin(), m_rows.end(),
                                     [](const Row &row) { return row.match.candidates.size() == 1; }));
}

std::size_t RelinkPlan::ambiguousCount() const
{
    return std::size_t(std::count_if(m_rows.begin(), m_rows.end(),
                                     [](const Row &row) { return row.match.candidates.size() > 1; }));
}

std::vector<RelinkChoice> RelinkPlan::choices() const
{
    std::vector<RelinkChoice> choices;
    for (const Row &row : m_rows) {
        if (row.isRelinked)
            choices.push_back({row.match.missing.url, row.match.candidates[*row.chosen].file});
    }
    return choices;
}

std::optional<PathMapping> RelinkPlan::mapping() const
{
    std::vector<std::pair<QString, QString>> found;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (m_rows[row].isRelinked)
            found.emplace_back(m_rows[row].match.missing.path, chosen(row)->file.path);
    }
    const std::vector<PathMapping> suggested = suggestedMappings(found);
    PathMappings mappings;
    if (suggested.empty() || !mappings.add(suggested.front().from, suggested.front().to))
        return std::nullopt;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        const MissingFile &missing = m_rows[row].match.missing;
        if (!m_rows[row].isRelinked)
            continue;
        // What is no URL has no place, mapped or not.
        const QString path = QVXMLParser::filenameFromPathURLString(missing.url).value_or(QString());
        if (mappings.placeOf(missing.url, path) != chosen(row)->file.path)
            return std::nullopt;
    }
    return suggested.front();
}

} // namespace vantrell

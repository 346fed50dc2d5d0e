#pragma once

#include "rows/RowRecord.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vantrell
{

/// Finds the rows that hold a text, in whatever case and Unicode form it is written. prepare() folds the
/// texts of rows, which are kept until forget(): then a key costs no more than a look through what is there,
/// and a longer or shorter text less than that. Main thread, unless a member says otherwise.
class RowSearch
{
public:
    /// Adds the texts of a row that are searched to the list. Any thread.
    using Texts = std::function<void(const RowRecord &row, QStringList &texts)>;
    using Condition = std::function<bool(const RowRecord &row)>;

    /// Where each row of a list is among those that are kept.
    using Places = std::vector<std::uint32_t>;
    /// Of a row that is not kept.
    static constexpr std::uint32_t nowhere = 0xffffffff;
    /// By place.
    using Hits = std::vector<bool>;

    explicit RowSearch(Texts texts);

    /// The text to look for; empty for none, which every row holds.
    void setText(const QString &text);
    bool isEmpty() const { return m_folded.isEmpty(); }

    /// Whether one of the row's texts holds the text. The function may be called on any thread, and outlive
    /// this object, but not the texts' function; only the main thread uses what is kept.
    Condition condition() const;

    /// Valid until forget().
    Places placesOf(const RowList &rows) const;
    /// Which of the rows that are kept hold the text. Valid until the next call of a member.
    const Hits &hits() const;

    /// Folds the texts of the list's rows, from where the last call ended, for about that long. True when all
    /// are done. The rows outlive what is kept.
    bool prepare(const RowList &rows, std::chrono::milliseconds time = std::chrono::hours(1));
    /// Drops what is kept: texts of rows have changed, or the list has others.
    void forget();

    /// The text in the form in which texts are compared. Any thread.
    static QString folded(const QString &text);

private:
    class Index;

    std::shared_ptr<Index> m_index;
    QString m_folded;
    std::string m_bytes; // of the folded text
};

} // namespace vantrell

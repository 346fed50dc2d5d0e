#pragma once

#include "interchange/notes/NoteTable.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace vantrell
{

/// A column that the user gave a role: by its title, without regard to case, or by its number from 1.
struct NoteColumnChoice {
    QString column;
    NoteRole role;

    /// Whether the column at that index is meant. A title comes before a number.
    bool means(std::size_t index, const QStringList &headers) const;
};
using NoteColumnChoices = std::vector<NoteColumnChoice>;

/// Which columns of a table hold what. Any thread.
struct NoteRoles {
    std::vector<NoteRole> columns;
    /// By column, the unit of its plain numbers where its title or its numbers tell; no column's for a list
    /// that fixes its units.
    std::vector<std::optional<NoteUnit>> units = {};
    NoteUnit timeUnit = NoteUnit::Frames;
    NoteUnit durationUnit = NoteUnit::Frames;

    /// By the titles where they say something, otherwise by what the first records hold: the first column
    /// with times is the time, the second the end, or the duration where it is ever less; colours, tracks and
    /// users are told by their words; the first other column with text is the name, the second the comment.
    /// What remains is a field with its title; without a title it is ignored.
    static NoteRoles ofTable(const QStringList &headers, const std::vector<NoteTable::Cells> &sample);

    /// The same with the user's choices: a chosen role that only one column can have is taken from the
    /// others, and the units are those of the columns that have the roles then.
    void apply(const NoteColumnChoices &choices, const QStringList &headers);

    /// Sets the units of times and durations by the columns that hold them; a duration without one has that
    /// of the times.
    void setUnits();

    /// The row of the cells.
    NoteRow rowOf(const NoteTable::Cells &cells, std::size_t line) const;
};

/// Gives the values of a list without a table other roles: the columns are those that the list names.
void applyChoices(NoteList &list, const NoteColumnChoices &choices);

} // namespace vantrell

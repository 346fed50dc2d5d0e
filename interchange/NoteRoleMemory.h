#pragma once

#include "interchange/notes/NoteRoles.h"

#include <QStringList>
#include <QVariantList>

namespace vantrell
{

class UserDefaults;

/// The roles that the user gave the columns of lists, by the headers of these. They are kept in the user
/// defaults "noteColumnRoles", those used last first. Any thread.
class NoteRoleMemory
{
public:
    /// What is kept now.
    explicit NoteRoleMemory(const UserDefaults &defaults);

    /// The roles for lists with that header, in whatever case; none for a list without one.
    NoteColumnChoices choicesFor(const QStringList &headers) const;

    /// Keeps the roles for lists with that header, or, without any, that they have none.
    static void remember(UserDefaults &defaults, const QStringList &headers,
                         const NoteColumnChoices &choices);

private:
    QVariantList m_stored;
};

} // namespace vantrell

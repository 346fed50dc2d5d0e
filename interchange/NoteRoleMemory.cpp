#include "interchange/NoteRoleMemory.h"

#include "support/settings/UserDefaults.h"

#include <QVariantMap>

namespace vantrell
{

namespace
{

const QString memoryKey = QStringLiteral("noteColumnRoles");
const QString headerKey = QStringLiteral("header");
const QString rolesKey = QStringLiteral("roles");

constexpr qsizetype maximumHeaders = 100;

QStringList normalized(const QStringList &headers)
{
    QStringList titles;
    for (const QString &header : headers)
        titles.append(header.trimmed().toCaseFolded());
    return titles;
}

bool isOf(const QVariant &stored, const QStringList &titles)
{
    return normalized(stored.toMap().value(headerKey).toStringList()) == titles;
}

} // namespace

NoteRoleMemory::NoteRoleMemory(const UserDefaults &defaults)
    : m_stored(defaults.value(memoryKey).toList())
{
}

NoteColumnChoices NoteRoleMemory::choicesFor(const QStringList &headers) const
{
    NoteColumnChoices choices;
    const QStringList titles = normalized(headers);
    for (const QVariant &stored : m_stored) {
        if (titles.isEmpty() || !isOf(stored, titles))
            continue;
        const QVariantMap roles = stored.toMap().value(rolesKey).toMap();
        for (auto role = roles.cbegin(); role != roles.cend(); ++role) {
            if (const std::optional<NoteRole> read = NoteRole::fromText(role.value().toString()))
                choices.push_back({role.key(), *read});
        }
        break;
    }
    return choices;
}

void NoteRoleMemory::remember(UserDefaults &defaults, const QStringList &headers,
                              const NoteColumnChoices &choices)
{
    const QStringList titles = normalized(headers);
    if (titles.isEmpty())
        return;
    QVariantList kept;
    if (!choices.empty()) {
        QVariantMap roles;
        for (const NoteColumnChoice &choice : choices)
            roles.insert(choice.column, choice.role.text());
        kept.append(QVariantMap{{headerKey, headers}, {rolesKey, roles}});
    }
    const QVariantList before = defaults.value(memoryKey).toList();
    for (const QVariant &stored : before) {
        if (kept.size() < maximumHeaders && !isOf(stored, titles))
            kept.append(stored);
    }
    if (kept != before)
        defaults.setValue(memoryKey, kept);
}

} // namespace vantrell

#include "markers/MarkerFields.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "support/files/PropertyList.h"
#include "support/settings/UserDefaults.h"

#include <algorithm>

namespace vantrell
{

namespace
{

const QString defaultsKey = QStringLiteral("customMarkerFields");
const QString identifierKey = QStringLiteral("identifier");
const QString titleKey = QStringLiteral("title");
const QString colIndexKey = QStringLiteral("colIndex");

bool isAllowed(QChar c)
{
    return (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) || c == QLatin1Char('_');
}

/// The field with the same identifier, of those without one that with the same title; null for none.
template <typename Fields>
auto fieldLike(const MarkerField &field, Fields &fields) -> decltype(fields.data())
{
    const auto found = std::find_if(fields.begin(), fields.end(), [&field](const MarkerField &other) {
        return other.identifier == field.identifier &&
               (!field.identifier.isEmpty() || other.title == field.title);
    });
    return found == fields.end() ? nullptr : &*found;
}

} // namespace

MarkerFields::MarkerFields(MyDocument &document, UserDefaults *defaults)
    : m_document(document)
    , m_defaults(defaults)
{
}

void MarkerFields::setupMarkerFields()
{
    if (m_sheetIsOpen)
        return;
    load();
    DocumentInterface &interface = m_document.interface();
    QStringList identifiers;
    for (const MarkerField &field : m_markerFieldArray) {
        if (field.identifier.isEmpty())
            continue;
        if (!interface.markerColumns().contains(field.identifier))
            interface.addMarkerColumn(field.identifier, field.title);
        identifiers.append(field.identifier);
    }
    const QStringList columns = interface.markerColumns();
    for (const QString &column : columns) {
        if (column.startsWith(MarkerKey::customPrefix) && !identifiers.contains(column))
            interface.removeMarkerColumn(column);
    }
    const qint64 count = interface.markerColumns().size();
    for (const MarkerField &field : m_markerFieldArray) {
        const bool placed =
            !field.identifier.isEmpty() && field.colIndex && *field.colIndex >= 0 && *field.colIndex < count;
        if (placed)
            interface.moveMarkerColumn(field.identifier, int(*field.colIndex));
    }
    if (m_document.tableTab() == Tab::Markers)
        m_document.rowView(Tab::Markers).reload();
}

void MarkerFields::definitionsChanged()
{
    if (!m_isStoring)
        setupMarkerFields();
}

QString MarkerFields::formatMarkerFieldName(const QString &name)
{
    QString identifier = name.isEmpty() ? QStringLiteral("Untitled") : name;
    identifier = identifier.toUpper();
    const auto wrong = std::find_if_not(identifier.cbegin(), identifier.cend(), isAllowed);
    if (wrong != identifier.cend()) {
        const auto next = wrong + 1;
        const bool pair = wrong->isHighSurrogate() && next != identifier.cend() && next->isLowSurrogate();
        identifier.remove(wrong - identifier.cbegin(), pair ? 2 : 1);
    }
    if (!identifier.startsWith(MarkerKey::customPrefix))
        identifier.prepend(MarkerKey::customPrefix);
    return identifier;
}

void MarkerFields::markerFieldAdd()
{
    m_markerFieldArray.push_back({QStringLiteral(""), QStringLiteral("Untitled"), std::nullopt});
}

void MarkerFields::markerFieldRemove(std::size_t row)
{
    if (row < m_markerFieldArray.size())
        m_markerFieldArray.erase(m_markerFieldArray.begin() + std::ptrdiff_t(row));
}

void MarkerFields::setObjectValue(const QString &text, const QString &column, std::size_t row)
{
    if (row >= m_markerFieldArray.size())
        return;
    MarkerField &field = m_markerFieldArray[row];
    if (column == titleKey) {
        if (field.identifier.isEmpty())
            field.identifier = formatMarkerFieldName(text);
        field.title = text;
    } else if (column == identifierKey) {
        field.identifier = formatMarkerFieldName(text);
    }
}

QString MarkerFields::conflictOf(const QString &text, const QString &column, std::size_t row) const
{
    if (row >= m_markerFieldArray.size())
        return QString();
    const MarkerField &field = m_markerFieldArray[row];
    const bool givesIdentifier =
        column == identifierKey || (column == titleKey && field.identifier.isEmpty());
    const QString identifier = formatMarkerFieldName(text);
    if (!givesIdentifier || identifier == field.identifier)
        return QString();
    const auto other = std::find_if(
        m_markerFieldArray.begin(), m_markerFieldArray.end(),
        [&identifier](const MarkerField &candidate) { return candidate.identifier == identifier; });
    if (other == m_markerFieldArray.end())
        return QString();
    return column == titleKey
               ? QStringLiteral("The title \"%1\" would give the identifier %2, which the field \"%3\" has.")
                     .arg(text, identifier, other->title)
               : QStringLiteral("The field \"%2\" has the identifier %1 already.")
                     .arg(identifier, other->title);
}

void MarkerFields::showMarkerFieldsDialog()
{
    load();
    m_sheetIsOpen = true;
}

void MarkerFields::hideMarkerFieldsDialog()
{
    m_sheetIsOpen = false;
    mergeStored();
    store();
    setupMarkerFields();
}

void MarkerFields::columnMoved(const QString &identifier, int newIndex)
{
    if (!identifier.startsWith(MarkerKey::customPrefix))
        return;
    const auto moved =
        std::find_if(m_markerFieldArray.begin(), m_markerFieldArray.end(),
                     [&identifier](const MarkerField &field) { return field.identifier == identifier; });
    if (moved == m_markerFieldArray.end())
        return;
    moved->colIndex = newIndex;
    std::rotate(moved, moved + 1, m_markerFieldArray.end());
    store();
}

/// Takes in what other windows stored since the definitions were loaded: the fields that they defined, and
/// what they changed of fields that are left as they were here, or that they removed these.
void MarkerFields::mergeStored()
{
    if (!m_defaults)
        return;
    const std::vector<MarkerField> stored = storedFields();
    std::erase_if(m_markerFieldArray, [&](const MarkerField &ours) {
        const MarkerField *const before = fieldLike(ours, m_loaded);
        return before && before->title == ours.title && !fieldLike(ours, stored);
    });
    for (const MarkerField &theirs : stored) {
        const MarkerField *const before = fieldLike(theirs, m_loaded);
        if (MarkerField *const ours = fieldLike(theirs, m_markerFieldArray)) {
            ours->colIndex = theirs.colIndex;
            if (before && before->title == ours->title)
                ours->title = theirs.title;
        } else if (!before) {
            m_markerFieldArray.push_back(theirs);
        }
    }
}

void MarkerFields::load()
{
    if (!m_defaults)
        return;
    m_markerFieldArray = storedFields();
    m_loaded = m_markerFieldArray;
}

/// Only with defaults.
std::vector<MarkerField> MarkerFields::storedFields() const
{
    std::vector<MarkerField> fields;
    const QVariant stored = m_defaults->value(defaultsKey);
    for (const QVariant &entry : stored.toList()) {
        const QVariantMap definition = entry.toMap();
        MarkerField field;
        field.identifier = definition.value(identifierKey).toString();
        field.title = definition.value(titleKey).toString();
        if (definition.contains(colIndexKey))
            field.colIndex = PropertyList::integer(definition.value(colIndexKey));
        fields.push_back(field);
    }
    return fields;
}

void MarkerFields::store()
{
    if (!m_defaults)
        return;
    QVariantList definitions;
    for (const MarkerField &field : m_markerFieldArray) {
        QVariantMap definition;
        definition.insert(identifierKey, field.identifier);
        definition.insert(titleKey, field.title);
        if (field.colIndex)
            definition.insert(colIndexKey, *field.colIndex);
        definitions.emplace_back(definition);
    }
    m_loaded = m_markerFieldArray;
    m_isStoring = true;
    m_defaults->setValue(defaultsKey, definitions);
    m_isStoring = false;
}

} // namespace vantrell

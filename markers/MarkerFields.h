#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace vantrell
{

class MyDocument;
class UserDefaults;

/// The definition of one custom marker field.
struct MarkerField {
    QString identifier; ///< empty until the field has got its first title
    QString title;
    std::optional<qint64> colIndex; ///< index of its column, once the user has moved it
};

/// The custom marker fields of a document and their columns in the marker table. The definitions are
/// kept in the user defaults "customMarkerFields", which all documents share. Main thread.
class MarkerFields
{
public:
    /// The document outlives this object, as do the defaults; without them (null) there are only the
    /// definitions that are made here, and nothing is read or stored.
    MarkerFields(MyDocument &document, UserDefaults *defaults);

    const std::vector<MarkerField> &markerFieldArray() const { return m_markerFieldArray; }

    /// Loads the definitions and brings the columns of the marker table in line with them. Left until the
    /// sheet closes while that is open.
    void setupMarkerFields();
    /// The stored definitions changed: the same, unless it was this document that stored them.
    void definitionsChanged();

    /// The identifier that a text gives: in upper case, without the first character that is no letter
    /// from A to Z and no underscore, with "QVCUSTOM_" in front.
    static QString formatMarkerFieldName(const QString &name);

    // The sheet's edits change only the definitions here, until it closes.

    /// The sheet opens, over what is stored.
    void showMarkerFieldsDialog();
    /// It closes: stores its definitions, together with those that others stored meanwhile, and applies them.
    void hideMarkerFieldsDialog();

    /// Appends a definition without an identifier, titled "Untitled".
    void markerFieldAdd();
    /// Nothing happens for a row that is not there.
    void markerFieldRemove(std::size_t row);
    /// The cell of the column "title" or "identifier". Nothing happens for another one.
    void setObjectValue(const QString &text, const QString &column, std::size_t row);

    /// Why the text should not become the cell's: another field has the identifier that it would give. Null
    /// when nothing is against it.
    QString conflictOf(const QString &text, const QString &column, std::size_t row) const;

    /// The user moved a column of the marker table: a custom field keeps its new index.
    void columnMoved(const QString &identifier, int newIndex);

private:
    void load();
    void mergeStored();
    void store();
    std::vector<MarkerField> storedFields() const;

    MyDocument &m_document;
    UserDefaults *m_defaults;
    std::vector<MarkerField> m_markerFieldArray;
    std::vector<MarkerField> m_loaded; // as they were last loaded or stored
    bool m_sheetIsOpen = false;
    bool m_isStoring = false;
};

} // namespace vantrell

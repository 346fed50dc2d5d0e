#pragma once

#include "document/MyDocument.h"
#include "effects/EffectInventory.h"

#include <QString>

#include <functional>
#include <utility>

namespace vantrell
{

/// Changes to effects, written into the project's tree at once: the sequence that holds the effect counts
/// as modified and the document as edited. Editing an effect that is no longer in the
/// tree is refused with an alert. Main thread, once no inventory runs any more.
///
/// What takes records changes those, whatever is selected or on show.
class EffectEditor
{
public:
    /// The inventory is that of the same document.
    EffectEditor(MyDocument &document, EffectInventory &inventory);
    ~EffectEditor() { m_document.setRowFollower(Tab::Effects, {}); }
    EffectEditor(const EffectEditor &) = delete;
    EffectEditor &operator=(const EffectEditor &) = delete;

    /// What to do with the marker elements that went with effects.
    void setMarkersRemovedHandler(std::function<void(const XmlNodeList &markers)> handler)
    {
        m_markersRemoved = std::move(handler);
    }

    /// Gives the effect's child element of that name the value as its text, adding the child at the end
    /// when there is none. For the key "enabled", "1" switches the effect on and anything else switches it
    /// off, in the tree ("TRUE", "FALSE") and in the record. Without a project an alert says so; a key
    /// that cannot be an element's name changes nothing.
    void updateXMLEffect(const RowRecordPtr &effect, const QString &key, const QString &value);

    /// The same for each of the effects; one alert tells of those that are no longer in the tree. Refused
    /// with an alert while the project is being saved.
    void updateXMLEffects(const RowList &effects, const QString &key, const QString &value);

    /// Takes the effect's element out of the tree, a generator with all that is on it. Without a project
    /// an alert says so.
    void removeXMLEffect(const RowRecordPtr &effect);

    /// Removes the effects after a question, from the tree and from the document's list. False, and nothing
    /// changed, when the user does not agree, while the project is being saved and without effects.
    bool remove(const RowList &effects);
    /// The same with the selected effects. Deselects the rows of the marker table; those of the effects table
    /// stay selected.
    void removeEffects();

    /// What the Delete and Backspace keys do in the effects table: the selected rows leave the rows on
    /// show until the next rebuild. Neither tree nor list changes. Nothing without a selection.
    void hideSelectedEffects();

private:
    bool hasProject(const QString &alertTitle);
    RowList present(const RowList &effects, const QString &alertTitle);
    void removeElements(const RowList &effects);
    void noteRemoved(const XmlNodeList &elements);

    MyDocument &m_document;
    EffectInventory &m_inventory;
    std::function<void(const XmlNodeList &markers)> m_markersRemoved;
};

} // namespace vantrell

#include "effects/EffectEditor.h"

#include "document/DocumentEdit.h"
#include "effects/EffectKeys.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "xml/XmlEdit.h"
#include "xml/XmlQuery.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace vantrell
{

namespace
{

const QString removeTitle = QStringLiteral("Unable to remove effect");
const QString changeTitle = QStringLiteral("Unable to change setting");

RowList without(const RowList &rows, const RowList &removed)
{
    const std::unordered_set<RowRecordPtr> gone(removed.begin(), removed.end());
    RowList kept;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(kept),
                 [&](const RowRecordPtr &row) { return !gone.contains(row); });
    return kept;
}

QString nameOfChange(const QString &key, const QString &value, std::size_t count)
{
    const QString plural = count == 1 ? QString() : QStringLiteral("s");
    if (key != EffectKey::enabled.text())
        return QStringLiteral("Change Effect") + plural;
    return (value == QStringLiteral("1") ? QStringLiteral("Switch On Effect")
                                         : QStringLiteral("Switch Off Effect")) +
           plural;
}

QString nameOfRemoval(std::size_t count)
{
    return count == 1 ? QStringLiteral("Remove Effect") : QStringLiteral("Remove Effects");
}

} // namespace

EffectEditor::EffectEditor(MyDocument &document, EffectInventory &inventory)
    : m_document(document)
    , m_inventory(inventory)
{
    m_document.setRowFollower(Tab::Effects,
                              {[this](const MyDocument::RestoredRows &rows) {
                                   if (!rows.removed.empty() && m_document.tableTab() == Tab::Effects)
                                       m_inventory.updateEffectStatusText();
                               },
                               [this] { m_inventory.populateEffectData(); }});
}

void EffectEditor::updateXMLEffect(const RowRecordPtr &effect, const QString &key, const QString &value)
{
    guarded("EffectEditor::updateXMLEffect", [&] {
        QVLog::appendLog(u"Updating XML effect key %@ value %@...", key, value);
        if (!hasProject(changeTitle) || present({effect}, changeTitle).empty())
            return;
        const DocumentEdit edit(m_document, Tab::Effects, nameOfChange(key, value, 1));
        QString text = value;
        if (key == EffectKey::enabled.text()) {
            const bool isOn = value == QStringLiteral("1");
            text = isOn ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
            m_document.willSet(effect, EffectKey::enabled);
            effect->set(EffectKey::enabled, isOn ? 1 : 0);
        }
        const XmlNode element = effect->get(EffectKey::effectElement);
        if (const XmlNode child = element.childElement(key.toStdString())) {
            XmlEdit::setText(child, text);
        } else if (!XmlEdit::appendElement(element, key, text)) {
            QVLog::appendLog(u"No element can have the name %@", key);
            return;
        }
        m_document.markSequenceModified(effect->get(EffectKey::sequenceUUID));
    });
}

void EffectEditor::updateXMLEffects(const RowList &effects, const QString &key, const QString &value)
{
    guarded("EffectEditor::updateXMLEffects", [&] {
        if (!hasProject(changeTitle))
            return;
        const RowList changed = present(effects, changeTitle);
        if (changed.empty() || m_document.refusesWhileSaving(changeTitle))
            return;
        const DocumentEdit edit(m_document, Tab::Effects, nameOfChange(key, value, changed.size()));
        for (const RowRecordPtr &effect : changed)
            updateXMLEffect(effect, key, value);
    });
}

void EffectEditor::removeXMLEffect(const RowRecordPtr &effect)
{
    guarded("EffectEditor::removeXMLEffect", [&] {
        if (!hasProject(removeTitle))
            return;
        const XmlNode element = effect->get(EffectKey::effectElement);
        if (present({effect}, removeTitle).empty())
            return;
        const DocumentEdit edit(m_document, Tab::Effects, nameOfRemoval(1));
        m_document.xmlDoc()->remove(element);
        m_document.markSequenceModified(effect->get(EffectKey::sequenceUUID));
        noteRemoved({element});
    });
}

/// Tells which markers went with the elements.
void EffectEditor::noteRemoved(const XmlNodeList &elements)
{
    static const XmlQuery marker(QStringLiteral(".//marker"));
    XmlNodeList markers;
    for (const XmlNode element : elements) {
        const XmlNodeList held = marker.evaluate(element).nodes;
        markers.insert(markers.end(), held.begin(), held.end());
    }
    if (!markers.empty() && m_markersRemoved)
        m_markersRemoved(markers);
}

void EffectEditor::removeEffects()
{
    // What is selected now goes, whatever happens while the question stands.
    if (remove(m_document.selectedRecords(Tab::Effects)))
        m_document.interface().selectRows(Tab::Markers, {});
}

bool EffectEditor::remove(const RowList &effects)
{
    bool isRemoved = false;
    guarded("EffectEditor::remove", [&] {
        if (effects.empty())
            return;
        const bool isOne = effects.size() == 1;
        const int answer = QVAlert::alertSheetWithMessageText(
            formatText(u"Are you sure you wish to remove %@ effect%@?", isOne ? u"this" : u"these",
                       isOne ? u"" : u"s"),
            QStringLiteral("Remove"), QStringLiteral("Cancel"), QString(), QStringLiteral(""),
            m_document.interface().alertParent(), true);
        // The answer may come while the project is being saved, which began since.
        if (answer != AlertAnswer::Default || m_document.refusesWhileSaving(removeTitle))
            return;
        const RowList removed = hasProject(removeTitle) ? present(effects, removeTitle) : RowList();
        if (m_document.refusesWhileSaving(removeTitle)) // since that alert
            return;
        const DocumentEdit edit(m_document, Tab::Effects, nameOfRemoval(effects.size()));
        removeElements(removed);
        m_document.removeRows(Tab::Effects, effects);
        m_inventory.populateFilteredEffectData();
        isRemoved = true;
    });
    return isRemoved;
}

/// What goes with another of the effects, such as the filters of a generator, counts as removed, too.
void EffectEditor::removeElements(const RowList &effects)
{
    XmlNodeList removed;
    for (const RowRecordPtr &effect : effects) {
        removed.push_back(effect->get(EffectKey::effectElement));
        m_document.xmlDoc()->remove(removed.back());
        m_document.markSequenceModified(effect->get(EffectKey::sequenceUUID));
    }
    noteRemoved(removed);
}

void EffectEditor::hideSelectedEffects()
{
    guarded("EffectEditor::hideSelectedEffects", [&] {
        const RowList selected = m_document.selectedRecords(Tab::Effects);
        if (selected.empty())
            return;
        m_document.rowView(Tab::Effects).show(without(m_document.rowsOnShow(Tab::Effects), selected));
        m_document.interface().selectRows(Tab::Effects, {});
        m_inventory.updateEffectStatusText();
    });
}

/// Whether there is a tree to edit; an alert under that title says when there is none.
bool EffectEditor::hasProject(const QString &alertTitle)
{
    if (m_document.xmlDoc())
        return true;
    const QString reason = QStringLiteral("XML document cannot be found.");
    QVLog::appendLog(u"%@. %@", alertTitle, reason);
    QVAlert::alertSheetWithMessageText(alertTitle, reason, m_document.interface().alertParent());
    return false;
}

/// Those of the effects whose edits would be saved; one alert under that title tells of the others.
RowList EffectEditor::present(const RowList &effects, const QString &alertTitle)
{
    RowList present;
    std::copy_if(effects.begin(), effects.end(), std::back_inserter(present), [](const RowRecordPtr &effect) {
        return effect->get(EffectKey::effectElement).isAttached();
    });
    const std::size_t gone = effects.size() - present.size();
    if (gone > 0) {
        const QString reason =
            effects.size() == 1 ? QStringLiteral("It was removed from the project.")
            : gone == 1         ? QStringLiteral("One of the effects was removed from the project.")
                        : QStringLiteral("%1 of the effects were removed from the project.").arg(gone);
        QVAlert::alertSheetWithMessageText(alertTitle, reason, m_document.interface().alertParent());
    }
    return present;
}

} // namespace vantrell

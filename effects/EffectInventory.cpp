#include "effects/EffectInventory.h"

#include "effects/EffectColumns.h"
#include "effects/EffectKeys.h"
#include "effects/EffectReader.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <QSet>
#include <QStringMatcher>

namespace vantrell
{

namespace
{

bool passesType(const RowRecord &record, int type)
{
    const auto is = [&record](TypedKey<QString> key, const QString &value) {
        return record.get(key) == value;
    };
    switch (type) {
    case 1:
        return is(EffectKey::effectType, EffectType::filter);
    case 2:
        return is(EffectKey::effectType, EffectType::filter) &&
               is(EffectKey::mediaType, QStringLiteral("Video"));
    case 3:
        return is(EffectKey::effectType, EffectType::filter) &&
               is(EffectKey::mediaType, QStringLiteral("Audio"));
    case 4:
        return is(EffectKey::effectType, EffectType::generator);
    case 5:
        return is(EffectKey::effectType, EffectType::transition);
    default:
        return true;
    }
}

/// The effects that every clip has, hidden unless they are asked for.
bool isDefaultEffect(const QString &name)
{
    static const QSet<QString> defaults{QStringLiteral("Audio Pan"),    QStringLiteral("Audio Levels"),
                                        QStringLiteral("Basic Motion"), QStringLiteral("Drop Shadow"),
                                        QStringLiteral("Motion Blur"),  QStringLiteral("Crop"),
                                        QStringLiteral("Distort"),      QStringLiteral("Opacity")};
    return defaults.contains(name);
}

/// Whether an effect is one that the user wants to see, for any thread.
std::function<bool(const RowRecord &)> chosen(const ViewState &state)
{
    const QStringMatcher search(state.effectSearch, Qt::CaseInsensitive);
    return
        [type = state.effectType, showsDefaults = state.effectShowDefaults, search](const RowRecord &effect) {
            if (!passesType(effect, type))
                return false;
            const QString name = effect.get(EffectKey::name);
            if (!showsDefaults && isDefaultEffect(name))
                return false;
            // An effect without a name passes every search.
            return search.pattern().isEmpty() || name.isNull() || search.indexIn(name) >= 0;
        };
}

} // namespace

EffectInventory::EffectInventory(MyDocument &document)
    : m_document(document)
{
    m_document.rowView(Tab::Effects).setFilter(effectColumns, [this] {
        return RowView::Filter{.passes = chosen(m_document.viewState()),
                               .shown = [this] { updateEffectStatusText(); }};
    });
}

void EffectInventory::populateEffectData()
{
    m_document.populate(Tab::Effects, "EffectInventory::populateEffectData", [this] { build(); });
    QVLog::appendLog(u"Finished populating effects");
    if (m_document.isSelected(Tab::Effects))
        populateFilteredEffectData();
}

void EffectInventory::build()
{
    QVLog::appendLog(u"Populating effects...");
    RowView &view = m_document.rowView(Tab::Effects);
    RowList records;
    if (m_document.xmlDoc()) {
        EffectReader reader;
        const XmlNodeList elements = EffectReader::effectElements(m_document.xmlNode(), m_document.xmlType());
        records.reserve(elements.size());
        for (const XmlNode element : elements) {
            if (m_document.isClosing())
                return;
            records.push_back(reader.recordOf(element));
            view.setFoundSoFar(records.size());
        }
    }
    m_document.mainThread()->runAndWait([&] { view.setList(std::move(records)); });
}

void EffectInventory::populateFilteredEffectData()
{
    guarded("EffectInventory::populateFilteredEffectData", [this] {
        QVLog::appendLog(u"Filtering effects...");
        m_document.rebuildRows(Tab::Effects);
    });
    QVLog::appendLog(u"Finished filtering effects");
}

void EffectInventory::changeEffectFilter()
{
    populateFilteredEffectData();
}

void EffectInventory::effectSearchAction()
{
    populateFilteredEffectData();
}

void EffectInventory::updateEffectStatusText()
{
    const std::size_t count = m_document.rowsOnShow(Tab::Effects).size();
    const std::size_t selected = m_document.interface().selectedRows(Tab::Effects).size();
    QString text = formatText(u"%i item%@", count, count == 1 ? u"" : u"s");
    if (selected > 0)
        text += formatText(u" (%i selected)", selected);
    m_document.setLabel(Label::EffectStatus, text);
}

} // namespace vantrell

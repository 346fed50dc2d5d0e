#include "effects/EffectInventory.h"

#include "effects/EffectKeys.h"
#include "effects/EffectReader.h"
#include "rows/RowSort.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <QSet>
#include <QStringMatcher>

namespace vantrell
{

/// What a rebuild is made of, taken on the main thread.
struct EffectInventory::View {
    std::uint64_t rebuild = 0;
    int type = 0;
    bool showsDefaults = false;
    QString search;
    std::vector<SortDescriptor> sort;
    RowList rows;
};

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

} // namespace

EffectInventory::EffectInventory(MyDocument &document)
    : m_document(document)
{
}

void EffectInventory::populateEffectData()
{
    if (!guarded("EffectInventory::populateEffectData", [this] { build(); }))
        m_document.noteIncomplete();
    m_document.setPopulating(Tab::Effects, false);
    bool isShowing = false;
    m_document.mainThread()->runAndWait([&] {
        m_document.interface().stopSpinner(Tab::Effects);
        isShowing = m_document.viewState().selectedTab == Tab::Effects;
    });
    QVLog::appendLog(u"Finished populating effects");
    if (isShowing)
        populateFilteredEffectData();
}

void EffectInventory::build()
{
    QVLog::appendLog(u"Populating effects...");
    m_document.setPopulating(Tab::Effects, true);
    m_document.mainThread()->runAndWait([this] { m_document.interface().startSpinner(Tab::Effects); });
    RowList records;
    if (m_document.xmlDoc()) {
        EffectReader reader;
        const XmlNodeList elements = EffectReader::effectElements(m_document.xmlNode(), m_document.xmlType());
        records.reserve(elements.size());
        for (const XmlNode element : elements) {
            if (m_document.isClosing())
                return;
            records.push_back(reader.recordOf(element));
            m_document.setFoundSoFar(Tab::Effects, records.size());
        }
    }
    m_document.mainThread()->runAndWait([&] { m_document.setListOf(Tab::Effects, std::move(records)); });
}

void EffectInventory::populateFilteredEffectData()
{
    guarded("EffectInventory::populateFilteredEffectData", [this] {
        QVLog::appendLog(u"Filtering effects...");
        View view;
        if (m_document.mainThread()->runAndWait([&] { view = snapshot(); })) {
            RowList rows = filtered(view);
            const bool isWorker = !MainThread::isMainThread();
            m_document.mainThread()->runAndWait([&] {
                const bool isOutdated = isWorker && m_document.viewState().selectedTab != Tab::Effects;
                if (view.rebuild == m_rebuilds && !isOutdated)
                    show(std::move(rows));
            });
        }
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

EffectInventory::View EffectInventory::snapshot()
{
    const ViewState &state = m_document.viewState();
    return {++m_rebuilds,
            state.effectType,
            state.effectShowDefaults,
            state.effectSearch,
            m_document.interface().sortDescriptors(Tab::Effects),
            m_document.effectArray()};
}

RowList EffectInventory::filtered(const View &view)
{
    RowList rows;
    const QStringMatcher search(view.search, Qt::CaseInsensitive);
    for (const RowRecordPtr &record : view.rows) {
        if (!passesType(*record, view.type))
            continue;
        const QString name = record->get(EffectKey::name);
        if (!view.showsDefaults && isDefaultEffect(name))
            continue;
        // An effect without a name passes every search.
        if (view.search.isEmpty() || name.isNull() || search.indexIn(name) >= 0)
            rows.push_back(record);
    }
    return sortedRows(std::move(rows), view.sort);
}

void EffectInventory::show(RowList rows)
{
    m_document.setTableArray(Tab::Effects, std::move(rows));
    updateEffectStatusText();
}

void EffectInventory::updateEffectStatusText()
{
    const std::size_t count = m_document.rowsOnShow(Tab::Effects).size();
    const std::size_t selected = m_document.interface().selectedRows(Tab::Effects).size();
    QString text = formatText(u"%i item%@", count, count == 1 ? u"" : u"s");
    if (selected > 0)
        text += formatText(u" (%i selected)", selected);
    m_document.interface().setLabel(Label::EffectStatus, text);
}

} // namespace vantrell

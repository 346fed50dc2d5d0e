#include "markers/MarkerPresets.h"

#include "document/MyDocument.h"
#include "markers/MarkerColors.h"
#include "support/alerts/QVAlert.h"
#include "support/files/PropertyList.h"
#include "support/files/StandardFolders.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/text/TextFormat.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace vantrell
{

namespace
{

const QString selectedPresetKey = QStringLiteral("selectedPreset");
const QString extension = QStringLiteral(".markerpreset");
const QString noPreset = QStringLiteral("None");
const QString labelColumn = QStringLiteral("label");

/// The names of the presets in the folder, as the user's language sorts them.
QStringList presetNames(const QString &folder)
{
    QStringList names;
    const QStringList files =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &file : files) {
        if (file.endsWith(extension, Qt::CaseInsensitive))
            names.append(file.chopped(extension.size()));
    }
    QCollator collator;
    collator.setNumericMode(true);
    std::sort(names.begin(), names.end(), [&collator](const QString &a, const QString &b) {
        const int order = collator.compare(a, b);
        return order != 0 ? order < 0 : a < b;
    });
    return names;
}

QString pathOf(const QString &name)
{
    return MarkerPresets::folder() + QLatin1Char('/') + name + extension;
}

/// Whether the name stands for one file in the folder.
bool isFileName(const QString &name)
{
    return !name.contains(QLatin1Char('/')) && !name.contains(QChar(u'\0'));
}

/// Nothing when there is no such list. What is no file, such as a pipe, is not waited for.
std::optional<QVariantMap> readPreset(const QString &name)
{
    const QString path = pathOf(name);
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    const Result<QVariant> list = PropertyList::fromFile(path);
    if (!list || list.value().typeId() != QMetaType::QVariantMap) {
        QVLog::fastAppendLog(u"The marker preset \"%@\" cannot be read: %@", path,
                             list ? QStringLiteral("it is no dictionary") : list.message());
        return std::nullopt;
    }
    return list.value().toMap();
}

} // namespace

MarkerPresets::MarkerPresets(MyDocument &document, UserDefaults *defaults)
    : m_document(document)
    , m_defaults(defaults)
    , m_items(noPreset)
{
}

QString MarkerPresets::folder()
{
    return StandardFolders::applicationSupport() + QStringLiteral("/Orvandel/Halvex/Vantrell/Marker Presets");
}

void MarkerPresets::populateMarkerPresets()
{
    findPresets();
    apply();
    // What is remembered already may have changed elsewhere in the meantime.
    if (m_defaults && m_defaults->string(selectedPresetKey) != m_items[m_selected])
        storeChoice();
}

void MarkerPresets::refreshMarkerPresets()
{
    if (m_isStoring)
        return;
    findPresets();
    apply();
}

void MarkerPresets::changeMarkerPreset(int item)
{
    if (item < 0 || item >= m_items.size())
        return;
    m_selected = item;
    showMenu();
    apply();
    storeChoice();
}

void MarkerPresets::showMarkerPresetDialog()
{
    m_rows.clear();
    for (const MarkerColor &color : MarkerColors::table())
        m_rows.push_back({color.icon(), color.label});
    Q_EMIT sheetRequested();
    m_selected = rememberedItem();
    showMenu();
}

void MarkerPresets::cancelMarkerPresetDialog()
{
    Q_EMIT sheetEnded();
}

bool MarkerPresets::addMarkerPreset(const QString &typedName)
{
    DocumentInterface &interface = m_document.interface();
    const bool isHidden = typedName.size() >= 2 && typedName.startsWith(QLatin1Char('.'));
    const QString name = isHidden ? typedName.mid(1) : typedName;
    if (name.isEmpty()) {
        QVAlert::alertSheetWithMessageText(QStringLiteral("No name specified"),
                                           QStringLiteral("Please choose a name for this preset."),
                                           interface.alertParent());
        return false;
    }
    if (!m_defaults)
        return false;
    const QString path = pathOf(name);
    Result<void> written = Failure{QStringLiteral("\"%1\" cannot be the name of a file.").arg(name)};
    if (isFileName(name)) {
        QDir().mkpath(folder());
        if (!mayWrite(path))
            return false;
        QVariantMap preset;
        for (std::size_t k = 0; k < m_rows.size(); ++k)
            preset.insert(MarkerColors::table()[k].label, m_rows[k].label);
        written = PropertyList::toFile(preset, path);
    }
    if (!written) {
        QVLog::fastAppendLog(u"The marker preset \"%@\" cannot be written: %@", path, written.message());
        QVAlert::alertSheetWithMessageText(
            QStringLiteral("Unable to create preset"),
            formatText(u"Please ensure your permissions are correct for the directory %@", folder()),
            interface.alertParent());
        return false;
    }
    populateMarkerPresets();
    changeMarkerPreset(int(m_items.indexOf(name, 1))); // not the "None" that is no preset
    Q_EMIT sheetEnded();
    return true;
}

void MarkerPresets::setObjectValue(const QString &text, const QString &column, std::size_t row)
{
    if (row < m_rows.size() && column == labelColumn)
        m_rows[row].label = text;
}

void MarkerPresets::findPresets()
{
    m_items = QStringList(noPreset);
    if (m_defaults)
        m_items += presetNames(folder());
    m_selected = rememberedItem();
    showMenu();
}

/// "None" for a preset that is not in the menu.
int MarkerPresets::rememberedItem() const
{
    const QString remembered = m_defaults ? m_defaults->string(selectedPresetKey) : QString();
    return remembered.isNull() ? 0 : std::max(0, int(m_items.indexOf(remembered)));
}

void MarkerPresets::showMenu()
{
    Q_EMIT menuChanged(m_items + QStringList{QString(), QStringLiteral("Create preset...")}, m_selected);
}

void MarkerPresets::apply()
{
    m_markerLabelDict = m_selected == 0 ? std::nullopt : readPreset(m_items[m_selected]);
    QStringList labels;
    for (const MarkerColor &color : MarkerColors::table())
        labels.append(m_markerLabelDict ? m_markerLabelDict->value(color.label).toString() : color.label);
    Q_EMIT labelsChanged(labels);
}

void MarkerPresets::storeChoice()
{
    if (!m_defaults)
        return;
    m_isStoring = true;
    m_defaults->setValue(selectedPresetKey, m_items[m_selected]);
    m_isStoring = false;
}

/// Asks before a preset is replaced.
bool MarkerPresets::mayWrite(const QString &path)
{
    if (!QFileInfo::exists(path))
        return true;
    return QVAlert::alertSheetWithMessageText(
               QStringLiteral("This preset already exists"), QStringLiteral("Overwrite"),
               QStringLiteral("Cancel"), QString(), QStringLiteral("Would you like to overwrite it?"),
               m_document.interface().alertParent(), true) == AlertAnswer::Default;
}

} // namespace vantrell

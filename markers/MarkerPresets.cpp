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
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace vantrell
{

namespace
{

const QString selectedPresetKey = QStringLiteral("selectedPreset");
const QString nonePresetKey = QStringLiteral("selectedPresetIsNamedNone");
const QString extension = QStringLiteral(".markerpreset");
const QString noPreset = QStringLiteral("None");
const QString labelColumn = QStringLiteral("label");

/// The names of the presets in the folder, as the user's language sorts them.
QStringList namesIn(const QString &folder)
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

/// The file of a preset that was found, whose extension may be in another case.
QString foundPathOf(const QString &name)
{
    const QStringList files = QDir(MarkerPresets::folder()).entryList(QDir::Files | QDir::Hidden);
    for (const QString &file : files) {
        if (file.endsWith(extension, Qt::CaseInsensitive) && file.chopped(extension.size()) == name)
            return MarkerPresets::folder() + QLatin1Char('/') + file;
    }
    return pathOf(name);
}

/// The name that a typed one stands for.
QString nameOf(const QString &typedName)
{
    const bool isHidden = typedName.size() >= 2 && typedName.startsWith(QLatin1Char('.'));
    return isHidden ? typedName.mid(1) : typedName;
}

/// Why the name does not stand for one file in the folder; null when it does.
QString faultOf(const QString &name)
{
    if (name.contains(QLatin1Char('/')))
        return QStringLiteral("The name \"%1\" contains a slash, which separates folders.").arg(name);
    if (name.contains(QChar(u'\0')))
        return QStringLiteral("The name contains a character that the name of a file cannot contain.");
    return QString();
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
    if (!isRemembered(m_items[m_selected], m_selected > 0))
        storeChoice(m_items[m_selected], m_selected > 0);
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
    storeChoice(m_items[m_selected], m_selected > 0);
}

void MarkerPresets::showMarkerPresetDialog()
{
    m_edited = QString();
    m_rows.clear();
    for (const MarkerColor &color : MarkerColors::table())
        m_rows.push_back({color.icon(), color.label});
    showSheet();
}

void MarkerPresets::editMarkerPreset(const QString &name)
{
    m_edited = name;
    const std::optional<QVariantMap> labels = readPreset(name);
    m_rows.clear();
    for (const MarkerColor &color : MarkerColors::table())
        m_rows.push_back({color.icon(), labels ? labels->value(color.label).toString() : color.label});
    showSheet();
}

/// The pop-up does not keep the item that asked for the sheet.
void MarkerPresets::showSheet()
{
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
    const bool isEdited = !m_edited.isNull() && typedName == m_edited;
    const QString name = isEdited ? m_edited : nameOf(typedName);
    if (name.isEmpty()) {
        QVAlert::alertSheetWithMessageText(QStringLiteral("No name specified"),
                                           QStringLiteral("Please choose a name for this preset."),
                                           interface.alertParent());
        return false;
    }
    if (!m_defaults)
        return false;
    if (const QString fault = faultOf(name); !fault.isNull()) {
        QVLog::fastAppendLog(u"No marker preset can have that name: %@", fault);
        QVAlert::alertSheetWithMessageText(QStringLiteral("Unable to create preset"), fault,
                                           interface.alertParent());
        return false;
    }
    const QString path = pathOf(name);
    QDir().mkpath(folder());
    if (!isEdited && !mayWrite(path))
        return false;
    QVariantMap preset;
    for (std::size_t k = 0; k < m_rows.size(); ++k)
        preset.insert(MarkerColors::table()[k].label, m_rows[k].label);
    const Result<void> written = PropertyList::toFile(preset, path);
    if (!written) {
        QVLog::fastAppendLog(u"The marker preset \"%@\" cannot be written: %@", path, written.message());
        QVAlert::alertSheetWithMessageText(
            QStringLiteral("Unable to create preset"),
            formatText(u"Please ensure your permissions are correct for the directory %@", folder()),
            interface.alertParent());
        return false;
    }
    populateMarkerPresets();
    if (!isEdited)
        changeMarkerPreset(int(m_items.indexOf(name, 1))); // not the "None" that is no preset
    Q_EMIT sheetEnded();
    return true;
}

Result<void> MarkerPresets::renameMarkerPreset(const QString &name, const QString &typedName)
{
    const QString newName = nameOf(typedName);
    if (newName.isEmpty())
        return Failure{QStringLiteral("A preset needs a name.")};
    if (const QString fault = faultOf(newName); !fault.isNull())
        return Failure{fault};
    if (newName == name)
        return {};
    if (!m_defaults)
        return Failure{QStringLiteral("There are no presets.")};
    if (QFileInfo::exists(pathOf(newName)))
        return Failure{QStringLiteral("There is a preset named \"%1\" already.").arg(newName)};
    QFile file(foundPathOf(name));
    if (!file.rename(pathOf(newName))) {
        QVLog::fastAppendLog(u"The marker preset \"%@\" cannot be renamed to \"%@\": %@", file.fileName(),
                             newName, file.errorString());
        return Failure{
            QStringLiteral("\"%1\" could not be renamed: %2.").arg(name, file.errorString().trimmed())};
    }
    if (isRemembered(name, true))
        storeChoice(newName, true);
    findPresets();
    apply();
    return {};
}

bool MarkerPresets::deleteMarkerPreset(const QString &name)
{
    if (!m_defaults || !presetNames().contains(name))
        return false;
    DocumentInterface &interface = m_document.interface();
    const int answer = QVAlert::alertSheetWithMessageText(
        QStringLiteral("Delete the preset \"%1\"?").arg(name), QStringLiteral("Cancel"),
        QStringLiteral("Delete"), QString(),
        QStringLiteral("Its labels will be lost. Markers keep their colors."), interface.alertParent(), true);
    if (answer != AlertAnswer::Alternate)
        return false;
    QFile file(foundPathOf(name));
    const bool isGone = file.remove() || !file.exists();
    if (!isGone) {
        QVLog::fastAppendLog(u"The marker preset \"%@\" cannot be deleted: %@", file.fileName(),
                             file.errorString());
        QVAlert::alertSheetWithMessageText(QStringLiteral("Unable to delete preset"), file.errorString(),
                                           interface.alertParent());
    }
    populateMarkerPresets();
    return isGone;
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
        m_items += namesIn(folder());
    m_selected = rememberedItem();
    showMenu();
}

/// "None" for a preset that is not in the menu.
int MarkerPresets::rememberedItem() const
{
    const QString remembered = m_defaults ? m_defaults->string(selectedPresetKey) : QString();
    if (remembered.isNull())
        return 0;
    const int first = remembered == noPreset && m_defaults->boolean(nonePresetKey) ? 1 : 0;
    return std::max(0, int(m_items.indexOf(remembered, first)));
}

/// True without defaults.
bool MarkerPresets::isRemembered(const QString &title, bool isPreset) const
{
    if (!m_defaults)
        return true;
    return m_defaults->string(selectedPresetKey) == title &&
           m_defaults->boolean(nonePresetKey) == (isPreset && title == noPreset);
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

/// A second value tells a preset with the name "None" from the item that stands for none.
void MarkerPresets::storeChoice(const QString &title, bool isPreset)
{
    if (!m_defaults)
        return;
    m_isStoring = true;
    m_defaults->setValues({{selectedPresetKey, title},
                           {nonePresetKey, isPreset && title == noPreset ? QVariant(true) : QVariant()}});
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

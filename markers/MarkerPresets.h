#pragma once

#include "support/files/Result.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>
#include <vector>

namespace vantrell
{

class MyDocument;
class UserDefaults;

/// One row of the sheet that makes a preset.
struct MarkerPresetRow {
    QString icon; ///< name of the colour's image
    QString label;
};

/// The marker presets of a document: property lists in a folder of the user's, each of which gives the
/// eight marker colours labels of its own. The chosen one's name is kept in the user defaults
/// "selectedPreset", which all documents share. Main thread.
class MarkerPresets : public QObject
{
    Q_OBJECT

public:
    /// The document outlives this object, as do the defaults; without them (null) there are no presets, and
    /// nothing is read or stored.
    MarkerPresets(MyDocument &document, UserDefaults *defaults);

    /// Where the preset files are; it need not be there.
    static QString folder();

    /// Builds the items of the preset pop-up and applies the preset that the defaults name; "None" when it
    /// is not there any more.
    void populateMarkerPresets();
    /// Another document or process changed the presets or the choice: shows what holds now and stores
    /// nothing, so that a choice is never replaced by an older one.
    void refreshMarkerPresets();

    /// The user chose that item of the pop-up: "None" or a preset. One whose file cannot be read leaves the
    /// colours their default labels.
    void changeMarkerPreset(int item);

    /// The last item of the pop-up: fills the rows of the sheet and shows it.
    void showMarkerPresetDialog();
    /// Shows the sheet with the labels of a preset; the default ones when its file cannot be read.
    void editMarkerPreset(const QString &name);
    /// The preset that the sheet was shown for; null for a new one.
    const QString &editedPreset() const { return m_edited; }
    void cancelMarkerPresetDialog();
    /// Saves the rows as the preset of that name and ends the sheet; a new preset becomes the chosen one.
    /// False when the sheet stays: the user has been told why, or did not want to replace another preset.
    bool addMarkerPreset(const QString &name);

    /// The presets, without "None".
    QStringList presetNames() const { return m_items.mid(1); }
    /// Gives the preset's file another name, as typed, and keeps it chosen if it is. The failure is a
    /// sentence for the user: no or no possible name, the name of another preset, or what the file system
    /// says.
    Result<void> renameMarkerPreset(const QString &name, const QString &typedName);
    /// Removes the preset's file after a question; what was chosen becomes "None". True when it is gone.
    bool deleteMarkerPreset(const QString &name);

    const std::vector<MarkerPresetRow> &markerPresetTableDataArray() const { return m_rows; }
    /// The cell of the column "label". Nothing happens for another one.
    void setObjectValue(const QString &text, const QString &column, std::size_t row);

    /// The chosen preset by default label; nothing for "None" and while its file cannot be read.
    const std::optional<QVariantMap> &markerLabelDict() const { return m_markerLabelDict; }

Q_SIGNALS:
    /// The items of the preset pop-up, a separator where the title is null, and the chosen one.
    void menuChanged(const QStringList &titles, int selected);
    /// The titles of the eight colours in the marker filter and in the colour cells; they may be empty.
    void labelsChanged(const QStringList &labels);
    /// The sheet that makes a preset is to open, and to close.
    void sheetRequested();
    void sheetEnded();

private:
    void findPresets();
    int rememberedItem() const;
    void showMenu();
    void apply();
    bool isRemembered(const QString &title, bool isPreset) const;
    void storeChoice(const QString &title, bool isPreset);
    void showSheet();
    bool mayWrite(const QString &path);

    MyDocument &m_document;
    UserDefaults *m_defaults;
    QStringList m_items; // "None" and the presets, as in the pop-up
    int m_selected = 0;
    bool m_isStoring = false;
    std::optional<QVariantMap> m_markerLabelDict;
    std::vector<MarkerPresetRow> m_rows;
    QString m_edited;
};

} // namespace vantrell

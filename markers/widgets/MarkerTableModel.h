#pragma once

#include "table/widgets/TableModel.h"

#include <QStringList>

namespace vantrell
{

/// The table of the markers, with the columns of the custom fields behind its own.
class MarkerTableModel : public TableModel
{
    Q_OBJECT

public:
    explicit MarkerTableModel(MyDocument &document, QObject *parent = nullptr);

    /// The labels of the colours, by colour index.
    const QStringList &colorLabels() const { return m_colorLabels; }
    /// The labels with the names of the colors in the window's language; those of a preset as they are.
    static QStringList shownLabels(const QStringList &labels);
    const QStringList &shownColorLabels() const { return m_shownLabels; }
    void setColorLabels(const QStringList &labels);

    /// The sequence menu was exchanged.
    void sequenceMenuChanged();

    /// Items of the same name are told apart; "(none)" can be chosen where that takes the marker from a clip.
    std::vector<PopUpItem> popUpItems(const QModelIndex &index) const override;
    std::optional<EntryNote> entryNote(const QModelIndex &index, const QString &typed,
                                       int role) const override;

protected:
    int popUpIndex(const RowRecord &record, const Column &column) const override;
    QString text(const RowRecord &record, const Column &column) const override;
    QIcon icon(const RowRecord &record, const Column &column) const override;
    QString toolTip(const RowRecord &record, const Column &column) const override;

private:
    /// Null when the record has none in the menu.
    XmlNode sequenceOf(const RowRecord &record) const;
    MenuPtr clipMenu(const RowRecord &record) const;
    /// The menu of a cell that shows a sequence or clip; null for none.
    MenuPtr ownerMenu(const RowRecord &record, const Column &column) const;
    /// Whether the cell shows the name of a clip of the sequence that cannot be chosen: one in a multiclip.
    bool isOnOtherClip(const RowRecord &record, const Column &column) const;

    QStringList m_colorLabels;
    QStringList m_shownLabels;
};

} // namespace vantrell

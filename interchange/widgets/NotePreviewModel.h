#pragma once

#include <QAbstractTableModel>

namespace vantrell
{

class NotePreview;

/// The rows of a preview, with a check box in the first column. Main thread.
class NotePreviewModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Line, Name, Comment, Timecode, Duration, Color, Owner, User, Remark, ColumnCount };

    /// The preview outlives the model.
    NotePreviewModel(NotePreview &preview, QObject *parent);

    /// Whether any row has a text in the name, comment or user column.
    bool hasTexts(int column) const { return (m_columnsWithTexts & (1U << column)) != 0; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

private:
    void takePlan();
    void takeChecks();
    QString text(std::size_t row, int column) const;

    NotePreview &m_preview;
    int m_rows = 0;
    unsigned m_columnsWithTexts = 0; ///< one bit each
    QString m_owner;                 ///< the title of the sequence
};

} // namespace vantrell

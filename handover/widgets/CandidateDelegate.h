#pragma once

#include "support/widgets/CheckFrame.h"

namespace vantrell
{

/// The cells of a RelinkTableModel: paths keep both their ends, and a file that several were found for offers
/// them in a pop-up. Main thread.
class CandidateDelegate final : public FramedCheckDelegate
{
    Q_OBJECT

public:
    using FramedCheckDelegate::FramedCheckDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace vantrell

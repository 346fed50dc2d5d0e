#include "handover/widgets/CandidateDelegate.h"

#include "handover/widgets/RelinkTableModel.h"

#include <QComboBox>
#include <QTimer>

namespace vantrell
{

QWidget *CandidateDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                         const QModelIndex &index) const
{
    const auto *const model = static_cast<const RelinkTableModel *>(index.model());
    auto *const box = new QComboBox(parent);
    box->setAccessibleName(tr("File to relink to"));
    box->addItems(model->candidatesOf(index.row()));
    connect(box, &QComboBox::activated, this, [this, box] {
        auto *const delegate = const_cast<CandidateDelegate *>(this);
        Q_EMIT delegate->commitData(box);
        Q_EMIT delegate->closeEditor(box);
    });
    QTimer::singleShot(0, box, &QComboBox::showPopup);
    return box;
}

void CandidateDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    static_cast<QComboBox *>(editor)->setCurrentIndex(index.data(Qt::EditRole).toInt());
}

void CandidateDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                     const QModelIndex &index) const
{
    model->setData(index, static_cast<QComboBox *>(editor)->currentIndex());
}

void CandidateDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    FramedCheckDelegate::initStyleOption(option, index);
    option->textElideMode = index.column() == RelinkTableModel::Match ? Qt::ElideRight : Qt::ElideMiddle;
    const bool isFound =
        (index.siblingAtColumn(RelinkTableModel::Name).flags() & Qt::ItemIsUserCheckable) != 0;
    if (!isFound)
        option->palette.setBrush(QPalette::Text, option->palette.placeholderText());
}

} // namespace vantrell

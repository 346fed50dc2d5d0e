#pragma once

#include "table/widgets/TableModel.h"

#include <QComboBox>

namespace vantrell
{

/// The list of a pop-up cell while it is open. Only a choice of the user's counts. Opens as quickly with the
/// clips of a long sequence as with a few colours.
class PopUpCell : public QComboBox
{
    Q_OBJECT

public:
    PopUpCell(std::vector<PopUpItem> items, QWidget *parent);

    bool isChosen() const { return m_isChosen; }

    void hidePopup() override;
    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    void chosen();
    /// The list was closed; a choice is reported after this.
    void popupHidden();

private:
    bool m_isChosen = false;
};

} // namespace vantrell

#pragma once

#include <QComboBox>

namespace vantrell
{

/// The list of a pop-up cell while it is open. Only a choice of the user's counts.
class PopUpCell : public QComboBox
{
    Q_OBJECT

public:
    explicit PopUpCell(QWidget *parent);

    bool isChosen() const { return m_isChosen; }

    void hidePopup() override;

Q_SIGNALS:
    void chosen();
    /// The list is closed; a choice is told after this.
    void popupHidden();

private:
    bool m_isChosen = false;
};

} // namespace vantrell

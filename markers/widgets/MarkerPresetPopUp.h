#pragma once

#include "table/widgets/ControlPopUp.h"

#include <QStringList>

namespace vantrell
{

/// The pop-up of the marker presets, with the command that makes a new one as its last item. That one is
/// enabled in the open list only, so that neither the wheel nor the arrow keys choose it.
class MarkerPresetPopUp : public ControlPopUp
{
    Q_OBJECT

public:
    explicit MarkerPresetPopUp(QWidget *parent);

    /// The titles of the items, a separator where one is null, and the item that is chosen.
    void setMenu(const QStringList &titles, int selected);

    void showPopup() override;
    void hidePopup() override;

Q_SIGNALS:
    /// The user chose that item.
    void presetChosen(int item);
    /// The user chose the last item.
    void createRequested();

private:
    void setCreateEnabled(bool enabled);

    QStringList m_titles;
};

} // namespace vantrell

#pragma once

#include "table/widgets/ControlPopUp.h"

#include <QString>

namespace vantrell
{

/// The sequences of an overview. The closed pop-up shows the name of the one on show, also while the first
/// item is chosen, which follows the table. Main thread.
class OverviewPopUp final : public ControlPopUp
{
    Q_OBJECT

public:
    explicit OverviewPopUp(QWidget *parent);

    void setShownTitle(const QString &title);
    QString shownTitle() const { return m_shown; }

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;

private:
    QString m_shown;
};

} // namespace vantrell

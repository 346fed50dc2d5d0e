#pragma once

#include "table/widgets/ControlPopUp.h"

#include <QString>

namespace vantrell
{

/// The sequences of an overview. While the first item is chosen, which follows the table, the closed pop-up
/// shows the title of the sequence that this has led to. Main thread.
class OverviewPopUp final : public ControlPopUp
{
    Q_OBJECT

public:
    explicit OverviewPopUp(QWidget *parent);

    void setFollowedTitle(const QString &title);
    QString followedTitle() const { return m_followed; }

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;

private:
    QString m_followed;
};

} // namespace vantrell

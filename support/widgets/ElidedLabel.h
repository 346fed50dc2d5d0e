#pragma once

#include <QLabel>
#include <QString>

namespace vantrell
{

/// A line of text that is shortened in the middle where it has too little room, and then shown by its tool
/// tip. The text stays whole, also for copying. Main thread.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;
    /// Whether it is shortened now.
    bool isElided() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace vantrell

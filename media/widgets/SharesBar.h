#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

#include <vector>

namespace vantrell
{

/// A bar whose parts are shares of a whole, with their names and figures below it. What there is no room for
/// is counted there, and told by the tool tip as everything else. Main thread.
class SharesBar : public QWidget
{
    Q_OBJECT

public:
    struct Share {
        QString name;
        QString figure;  ///< such as "1.2 GB"
        double part = 0; ///< from 0 to 1
        QColor color = {};
    };

    /// The title says what the shares are of, and ends with a colon.
    SharesBar(const QString &title, QWidget *parent);

    void setShares(std::vector<Share> shares);
    const std::vector<Share> &shares() const { return m_shares; }
    /// "Movie Clips 1.2 GB (80 %)".
    static QString textOf(const Share &share);
    /// The share at a position in the bar; null elsewhere.
    const Share *shareAt(const QPoint &position) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect barRect() const;
    QRect partRect(std::size_t share) const;
    void paintLegend(QPainter &painter) const;

    QString m_title;
    std::vector<Share> m_shares;
};

} // namespace vantrell

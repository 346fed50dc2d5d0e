#pragma once

#include <QLabel>
#include <QString>

namespace vantrell
{

/// A text in as many lines as it needs, which can be selected. Words that are wider than the label are
/// shortened in the middle, and its tool tip tells the whole text, so that no text widens its window. Main
/// thread.
class WrappedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit WrappedLabel(QWidget *parent);

    /// In place of setText().
    void setWhole(const QString &text);
    QString whole() const { return m_whole; }

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fit();

    QString m_whole;
};

} // namespace vantrell

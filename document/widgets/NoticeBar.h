#pragma once

#include <QFrame>

class QLabel;

namespace vantrell
{

/// A line across the top of a window that tells something about its file, until the user puts it away.
/// Hidden while it has nothing to tell.
class NoticeBar final : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent);

    /// An empty text hides the bar.
    void setNotice(const QString &text);
    QString notice() const;

private:
    QLabel *m_text;
};

} // namespace vantrell

#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;

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
    /// A button behind the notice, which puts the notice away.
    void setAction(const QString &title, std::function<void()> action);

private:
    QLabel *m_text;
    QPushButton *m_action;
};

} // namespace vantrell

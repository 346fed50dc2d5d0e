#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;
class QToolButton;

namespace vantrell
{

/// A line across the top of a window that tells something about its file, until the user puts it away
/// or, where it must not be overlooked, until it no longer holds.
/// Hidden while it has nothing to tell.
class NoticeBar final : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent);

    enum class Kind {
        Dismissible,
        Lasting, ///< stays until another notice takes its place
    };

    /// An empty text hides the bar.
    void setNotice(const QString &text, Kind kind = Kind::Dismissible);
    QString notice() const;
    Kind kind() const { return m_kind; }

    /// A button behind the notice, which puts the notice away.
    void setAction(const QString &title, std::function<void()> action);

private:
    QLabel *m_text;
    QToolButton *m_dismiss;
    Kind m_kind = Kind::Dismissible;
    QPushButton *m_action;
};

} // namespace vantrell

#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;
class QToolButton;

namespace vantrell
{

/// A bar across the top of a window with a notice about its file, which the user can dismiss unless it is
/// important. Hidden without a notice.
class NoticeBar final : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent);

    enum class Kind {
        Dismissible,
        Lasting, ///< stays until it is replaced by another notice
    };

    /// An empty text hides the bar.
    void setNotice(const QString &text, Kind kind = Kind::Dismissible);
    QString notice() const;
    Kind kind() const { return m_kind; }

    /// Adds a button after the notice, which also dismisses it.
    void setAction(const QString &title, std::function<void()> action);

    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The bar had the focus when it was hidden.
    void focusLeft();

private:
    QLabel *m_text;
    QToolButton *m_dismiss;
    Kind m_kind = Kind::Dismissible;
    QPushButton *m_action;
};

} // namespace vantrell

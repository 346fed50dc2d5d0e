#pragma once

#include <QString>
#include <QWidget>

class QPushButton;

namespace vantrell
{

class WrappedLabel;

/// Tells the user something, with a button that copies the path that it is about, if any. Hidden while there
/// is nothing to tell. Main thread.
class MessageLine final : public QWidget
{
    Q_OBJECT

public:
    explicit MessageLine(QWidget *parent);

    /// A text without its full stop; empty for nothing. Without a path there is no button.
    void setMessage(const QString &text, const QString &path = QString());

private:
    WrappedLabel *m_text;
    QPushButton *m_copy;
    QString m_path;
};

} // namespace vantrell

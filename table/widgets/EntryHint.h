#pragma once

#include "table/widgets/TableModel.h"

#include <QFrame>

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;

namespace vantrell
{

/// A line below a field, or above it where there is no room, that tells what becomes of the text while it is
/// typed. It lies over what is there, and is gone with the field. Main thread.
class EntryHint : public QFrame
{
    Q_OBJECT

public:
    /// What is told about a text; nothing hides the line.
    using Tell = std::function<std::optional<EntryNote>(const QString &typed)>;

    /// Becomes a child of the field's parent, inside of which it stays.
    EntryHint(QLineEdit &field, Tell tell);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void follow(const QString &typed);
    void place();

    QLineEdit &m_field;
    Tell m_tell;
    QLabel *m_symbol;
    QLabel *m_text;
};

} // namespace vantrell

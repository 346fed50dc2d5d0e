#pragma once

#include "rows/Column.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

namespace vantrell
{

class QVTableView;
class TableModel;

/// How wide the columns of a tab's table are, and which are hidden. Each column has a wished width, which
/// follows the font of the table. One column, such as the comment, takes what the others leave; where there
/// is too little room, the columns whose cells can be read in a tool tip become narrower, so that the table
/// has a horizontal scroll bar only when the smallest widths do not fit, or when the user has made columns
/// wider since the table got its size. With the scroll bar they are less narrow. Widths are pixels of the
/// window. Main thread; table and model outlive the object.
class ColumnLayout : public QObject
{
    Q_OBJECT

public:
    ColumnLayout(QVTableView &table, TableModel &model, QObject *parent);

    /// The average width of a character in the table's font.
    int characterWidth() const { return m_characterWidth; }
    /// The wished width of a column, also of one that is not there.
    int width(const QString &identifier) const;
    void setWidth(const QString &identifier, int width);
    /// Whether the width was set; otherwise it is the usual one.
    bool hasOwnWidth(const QString &identifier) const { return m_widths.contains(identifier); }
    /// After a column was added to the model, and when widths or hidden columns were set.
    void apply();

    bool isHidden(const QString &identifier) const { return m_hidden.contains(identifier); }
    /// Shown again with the next apply().
    void setHidden(const QStringList &identifiers);
    /// Whether the column is shown and may be hidden: neither the last one nor the one that tells what the
    /// row is about.
    bool mayHide(const QString &identifier) const;
    /// The column that cannot be hidden.
    QString key() const;

    // What the user asks

    void show(const QString &identifier, bool isShown);
    /// As wide as the title and the cells on show need, up to a limit.
    void fit(const QString &identifier);
    void fitAll();
    /// The widths of a new table, and no hidden columns.
    void reset();

    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    /// The user has given a column another width.
    void resized();

private:
    const Column &column(int section) const;
    int usualWidth(const Column &column) const;
    int smallestWidth(int section) const;
    int fittingWidth(int section) const;
    int stretchedSection() const;
    void noteResize(int section, int from, int to);
    void endDrag();
    void takeFont();
    void followFont();
    void pin(int section);
    void arrange();

    QVTableView &m_table;
    TableModel &m_model;
    QHash<QString, int> m_widths; // by identifier; without an entry, the usual one
    QSet<QString> m_hidden;
    QSet<QString> m_pinned; // the user gave them their widths while the table was that wide
    int m_pinnedAt = 0;
    int m_characterWidth = 1;
    int m_draggedFrom = 0; // the width of the column when its edge was taken
    int m_dragged = -1;    // section
    int m_neighbour = -1;  // the section that takes what the dragged one gives up
    int m_neighbourFrom = 0;
    bool m_isPressed = false; // the mouse button, on the header
    bool m_arranges = false;
    bool m_hasRoom = false; // the table has got its size
};

} // namespace vantrell

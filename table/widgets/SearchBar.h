#pragma once

#include <QString>
#include <QWidget>

class QComboBox;
class QHBoxLayout;
class QLineEdit;
class QTimer;

namespace vantrell
{

class CountLabel;

/// The line above a table that narrows its rows: a search field, pop-ups, and what is shown and selected.
/// Escape clears the field; in an empty one it leaves it, as Return and Down always do. Main thread.
class SearchBar : public QWidget
{
    Q_OBJECT

public:
    explicit SearchBar(QWidget *parent);

    QLineEdit &field() const { return *m_field; }
    QString text() const;
    /// Adds a pop-up after the others; the keyboard reaches it after them.
    void addPopUp(QComboBox *popUp);
    /// Sets the field's text and the first item of each pop-up.
    void clear();
    /// Whether there is a text, or a pop-up shows another than its first item.
    bool isNarrowing() const;

    /// At the end of the line; where there is no place for all of it, the shorter text, which may be cut.
    void setCounts(const QString &text, const QString &shorter = QString());
    QString counts() const;
    /// What of them has place.
    QString shownCounts() const;

Q_SIGNALS:
    /// A condition has changed; once for all keys that are there.
    void changed();
    /// The field has got the keyboard focus.
    void entered();
    /// The user wants to go to the table.
    void left();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool handleKey(int key);
    void applyNow();

    QHBoxLayout *m_line;
    QLineEdit *m_field;
    CountLabel *m_counts;
    QTimer *m_change;
    QList<QComboBox *> m_popUps;
};

} // namespace vantrell

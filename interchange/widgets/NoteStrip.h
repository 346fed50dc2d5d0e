#pragma once

#include <QScrollArea>
#include <QStringList>

#include <vector>

class QComboBox;
class QHBoxLayout;
class QLabel;

namespace vantrell
{

class NotePreview;

/// A row of small settings that scrolls sideways: for each a title, a hint and a pop-up. Main thread.
class NoteStrip : public QScrollArea
{
    Q_OBJECT

public:
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// From the left.
    const std::vector<QComboBox *> &popUps() const { return m_popUps; }

protected:
    explicit NoteStrip(QWidget *parent);

    void clear();
    /// The name is for screen readers.
    QComboBox *add(const QString &title, const QString &hint, const QString &name);
    void setHint(std::size_t index, const QString &hint);
    /// A text instead of the settings that are too many.
    void addRest(const QString &text);
    bool eventFilter(QObject *object, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QHBoxLayout *m_row = nullptr;
    std::vector<QComboBox *> m_popUps;
    std::vector<QLabel *> m_hints;
};

/// What the columns of a list become.
class NoteColumnStrip final : public NoteStrip
{
    Q_OBJECT

public:
    /// The preview outlives the strip.
    NoteColumnStrip(NotePreview &preview, QWidget *parent);

private:
    void takePlan();

    NotePreview &m_preview;
    QStringList m_titles;
};

/// What the colours of a list become.
class NoteColorStrip final : public NoteStrip
{
    Q_OBJECT

public:
    NoteColorStrip(NotePreview &preview, QWidget *parent);

private:
    void takePlan();

    NotePreview &m_preview;
    QStringList m_keys;
};

} // namespace vantrell

#include "interchange/widgets/NoteStrip.h"

#include "interchange/NotePreview.h"
#include "markers/MarkerColors.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/TableIcons.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QResizeEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrell
{

namespace
{

constexpr std::size_t maximumColumns = 64;
constexpr std::size_t maximumColors = 32;

QLabel *makeLabel(const QString &text, int width, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(label->fontMetrics().elidedText(text, Qt::ElideRight, width));
    label->setToolTip(text.toHtmlEscaped());
    return label;
}

QString titleOf(NoteRole::Kind role)
{
    switch (role) {
    case NoteRole::Time:
        return NoteColumnStrip::tr("Time");
    case NoteRole::Duration:
        return NoteColumnStrip::tr("Duration");
    case NoteRole::End:
        return NoteColumnStrip::tr("End");
    case NoteRole::Name:
        return NoteColumnStrip::tr("Name");
    case NoteRole::Comment:
        return NoteColumnStrip::tr("Comment");
    case NoteRole::Color:
        return NoteColumnStrip::tr("Color");
    case NoteRole::User:
        return NoteColumnStrip::tr("User");
    case NoteRole::Track:
        return NoteColumnStrip::tr("Track");
    case NoteRole::Type:
        return NoteColumnStrip::tr("Type");
    case NoteRole::Field:
        return NoteColumnStrip::tr("Custom field");
    case NoteRole::Ignore:
    case NoteRole::ColorValue:
        break;
    }
    return NoteColumnStrip::tr("Ignored");
}

} // namespace

NoteStrip::NoteStrip(QWidget *parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    clear();
}

void NoteStrip::clear()
{
    auto *const content = new QWidget;
    m_row = new QHBoxLayout(content);
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(fontMetrics().averageCharWidth() * 2);
    m_row->addStretch(1);
    m_popUps.clear();
    m_hints.clear();
    setWidget(content); // deletes the one before
}

QComboBox *NoteStrip::add(const QString &title, const QString &hint, const QString &name)
{
    auto *const popUp = new QComboBox(widget());
    popUp->setAccessibleName(name);
    popUp->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const int width = fontMetrics().averageCharWidth() * 18;
    auto *const column = new QVBoxLayout;
    column->setSpacing(2);
    QLabel *const head = makeLabel(title, width, widget());
    QFont bold = head->font();
    bold.setBold(true);
    head->setFont(bold);
    head->setText(head->fontMetrics().elidedText(title, Qt::ElideRight, width));
    QLabel *const below = makeLabel(hint, width, widget());
    below->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(head);
    column->addWidget(below);
    column->addWidget(popUp);
    column->addStretch(1);
    m_row->insertLayout(m_row->count() - 1, column);
    m_popUps.push_back(popUp);
    m_hints.push_back(below);
    return popUp;
}

void NoteStrip::setHint(std::size_t index, const QString &hint)
{
    QLabel *const label = m_hints[index];
    label->setText(
        label->fontMetrics().elidedText(hint, Qt::ElideRight, fontMetrics().averageCharWidth() * 18));
    label->setToolTip(hint.toHtmlEscaped());
}

void NoteStrip::addRest(const QString &text)
{
    m_row->insertWidget(m_row->count() - 1, new QLabel(text, widget()));
}

/// Settings that are added show, and have a size, only later.
bool NoteStrip::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(object, event);
}

/// The scroll bar needs its height only where not everything fits.
void NoteStrip::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

QSize NoteStrip::sizeHint() const
{
    const QSize content = widget()->sizeHint();
    const bool fits = content.width() <= width();
    return {content.width(), content.height() + (fits ? 0 : horizontalScrollBar()->sizeHint().height())};
}

QSize NoteStrip::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 40, sizeHint().height()};
}

NoteColumnStrip::NoteColumnStrip(NotePreview &preview, QWidget *parent)
    : NoteStrip(parent)
    , m_preview(preview)
{
    setAccessibleName(tr("Columns of the list"));
    takePlan();
    connect(&m_preview, &NotePreview::planned, this, &NoteColumnStrip::takePlan);
}

void NoteColumnStrip::takePlan()
{
    const std::vector<NotePreview::Column> columns = m_preview.columns();
    const std::size_t shown = std::min(columns.size(), maximumColumns);
    QStringList titles;
    for (const NotePreview::Column &column : columns)
        titles.append(column.title);
    if (titles != m_titles || popUps().size() != shown) {
        m_titles = titles;
        clear();
        for (std::size_t i = 0; i < shown; ++i) {
            QComboBox *const popUp = add(shownMessage(columns[i].title), columns[i].example,
                                         tr("Role of the column “%1”").arg(shownMessage(columns[i].title)));
            for (const NoteRole::Kind role :
                 {NoteRole::Ignore, NoteRole::Time, NoteRole::Duration, NoteRole::End, NoteRole::Name,
                  NoteRole::Comment, NoteRole::Color, NoteRole::User, NoteRole::Track, NoteRole::Type,
                  NoteRole::Field})
                popUp->addItem(titleOf(role), int(role));
            connect(popUp, &QComboBox::activated, this,
                    [this, popUp, i] { m_preview.setRole(i, NoteRole::Kind(popUp->currentData().toInt())); });
        }
        if (shown < columns.size())
            addRest(tr("and %1 more").arg(QLocale().toString(qulonglong(columns.size() - shown))));
    }
    for (std::size_t i = 0; i < shown && !m_preview.isPlanning(); ++i) {
        popUps()[i]->setCurrentIndex(popUps()[i]->findData(int(columns[i].role.kind)));
        setHint(i, columns[i].example);
    }
}

NoteColorStrip::NoteColorStrip(NotePreview &preview, QWidget *parent)
    : NoteStrip(parent)
    , m_preview(preview)
{
    setAccessibleName(tr("Colors of the list"));
    takePlan();
    connect(&m_preview, &NotePreview::planned, this, &NoteColorStrip::takePlan);
}

void NoteColorStrip::takePlan()
{
    const std::vector<NoteColorUse> colors = m_preview.colors();
    const std::size_t shown = std::min(colors.size(), maximumColors);
    const auto rows = [](const NoteColorUse &color) {
        return color.count == 1 ? tr("1 row")
                                : tr("%1 rows").arg(QLocale().toString(qulonglong(color.count)));
    };
    QStringList keys;
    for (const NoteColorUse &color : colors)
        keys.append(color.key);
    if (keys != m_keys || popUps().size() != shown) {
        m_keys = keys;
        clear();
        for (std::size_t i = 0; i < shown; ++i) {
            const QString title = colors[i].text.isEmpty() ? tr("No color") : colors[i].text;
            QComboBox *const popUp = add(title, rows(colors[i]), tr("Color for “%1”").arg(title));
            for (std::size_t color = 0; color < MarkerColors::count; ++color)
                popUp->addItem(TableIcons::marker(int(color)),
                               shownValue(MarkerColors::table()[color].label));
            connect(popUp, &QComboBox::activated, this,
                    [this, key = colors[i].key](int color) { m_preview.setColor(key, color); });
        }
        if (shown < colors.size())
            addRest(tr("and %1 more").arg(QLocale().toString(qulonglong(colors.size() - shown))));
    }
    for (std::size_t i = 0; i < shown && !m_preview.isPlanning(); ++i) {
        popUps()[i]->setCurrentIndex(colors[i].color);
        setHint(i, rows(colors[i]));
    }
}

} // namespace vantrell

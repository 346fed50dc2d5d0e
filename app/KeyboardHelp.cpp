#include "app/KeyboardHelp.h"

#include "app/KeyList.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>
#include <QScrollBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrell
{

namespace
{

enum ListColumn { Text, Keys };

QTreeWidgetItem *makeGroup(const KeyGroup &group, QTreeWidget *list)
{
    auto *const item = new QTreeWidgetItem(list, {group.title});
    item->setSizeHint(Text, QSize(0, list->fontMetrics().height() + 6)); // of all rows
    QFont bold = list->font();
    bold.setBold(true);
    item->setFont(Text, bold);
    item->setFlags(Qt::ItemIsEnabled);
    for (const KeyEntry &entry : group.entries) {
        auto *const line = new QTreeWidgetItem(item, {entry.text, entry.keys});
        line->setToolTip(Text, entry.text);
    }
    return item;
}

} // namespace

KeyboardHelp *KeyboardHelp::showFor(QMainWindow &window)
{
    auto *help = window.findChild<KeyboardHelp *>(QString(), Qt::FindDirectChildrenOnly);
    if (!help)
        help = new KeyboardHelp(window);
    help->fill(window);
    help->show();
    help->raise();
    help->activateWindow();
    return help;
}

KeyboardHelp::KeyboardHelp(QMainWindow &window)
    : QDialog(&window)
    , m_search(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_nothing(new QLabel(tr("No key does that."), this))
{
    window.installEventFilter(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Keyboard Shortcuts"));
    m_search->setPlaceholderText(tr("Search keys and commands"));
    m_search->setAccessibleName(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_list->setAccessibleName(tr("Keyboard shortcuts"));
    m_list->setHeaderLabels({tr("Command"), tr("Keys")});
    m_list->setRootIsDecorated(false);
    m_list->setItemsExpandable(false);
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionsMovable(false);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(Text, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(Keys, QHeaderView::ResizeToContents);
    m_nothing->setAlignment(Qt::AlignCenter);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_search, &QLineEdit::textChanged, this, &KeyboardHelp::filter);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_nothing, 1);
    layout->addWidget(buttons);
    const QSize wanted(fontMetrics().averageCharWidth() * 76, fontMetrics().height() * 34);
    resize(wanted.boundedTo(window.screen()->availableSize() * 9 / 10));
    setMinimumSize(fontMetrics().averageCharWidth() * 44, fontMetrics().height() * 12);
}

void KeyboardHelp::fill(const QMainWindow &window)
{
    m_list->clear();
    for (const KeyGroup &group : shortcutsOf(window) + otherKeys())
        makeGroup(group, m_list)->setFirstColumnSpanned(true);
    m_list->expandAll();
    fitWidth();
    m_search->setFocus();
    m_search->selectAll();
    filter();
}

/// Makes the window wide enough for the texts.
void KeyboardHelp::fitWidth()
{
    const int texts = static_cast<const QAbstractItemView *>(m_list)->sizeHintForColumn(Text) +
                      static_cast<const QAbstractItemView *>(m_list)->sizeHintForColumn(Keys);
    const int frame = m_list->verticalScrollBar()->sizeHint().width() + 2 * m_list->frameWidth() +
                      layout()->contentsMargins().left() + layout()->contentsMargins().right();
    resize(std::clamp(texts + frame, width(), std::max(width(), screen()->availableSize().width() * 9 / 10)),
           height());
}

/// Shows the lines that contain the text, and all lines of a group that does.
void KeyboardHelp::filter()
{
    const QString text = m_search->text().trimmed();
    const auto matches = [&text](const QTreeWidgetItem &item) {
        return item.text(Text).contains(text, Qt::CaseInsensitive) ||
               item.text(Keys).contains(text, Qt::CaseInsensitive);
    };
    bool isAnyShown = false;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem &group = *m_list->topLevelItem(i);
        const bool showsAll = matches(group);
        bool isShown = false;
        for (int line = 0; line < group.childCount(); ++line) {
            const bool isHit = showsAll || matches(*group.child(line));
            group.child(line)->setHidden(!isHit);
            isShown = isShown || isHit;
        }
        group.setHidden(!isShown);
        isAnyShown = isAnyShown || isShown;
    }
    m_list->setVisible(isAnyShown);
    m_nothing->setVisible(!isAnyShown);
}

bool KeyboardHelp::eventFilter(QObject *object, QEvent *event)
{
    if (object == parent() && event->type() == QEvent::Hide && !event->spontaneous())
        close();
    return QDialog::eventFilter(object, event);
}

/// Escape clears the search field first.
void KeyboardHelp::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !m_search->text().isEmpty())
        m_search->clear();
    else
        QDialog::keyPressEvent(event);
}

} // namespace vantrell

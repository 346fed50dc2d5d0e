#include "app/StartWindow.h"

#include "app/PreferenceKeys.h"
#include "app/RecentFiles.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/FilePanel.h"
#include "support/widgets/MessageLine.h"
#include "support/widgets/SymbolIcon.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantrell
{

namespace
{

constexpr int logoSide = 96;

/// A hint with a dashed outline, highlighted while a file is dragged over the window.
class DropArea final : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool isTarget = property("isTarget").toBool();
        QColor outline = palette().color(isTarget ? QPalette::Highlight : QPalette::WindowText);
        if (!isTarget)
            outline.setAlphaF(0.35F);
        painter.setPen(QPen(outline, isTarget ? 2 : 1.2, Qt::DashLine));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 8, 8);
        QLabel::paintEvent(event);
    }
};

QString shownFolder(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    const QString home = QDir::homePath();
    return folder == home || folder.startsWith(home + QLatin1Char('/'))
               ? QLatin1Char('~') + folder.mid(home.size())
               : folder;
}

} // namespace

StartWindow::StartWindow(RecentFiles &recentFiles, UserDefaults &defaults)
    : m_recentFiles(recentFiles)
    , m_defaults(defaults)
{
    setWindowTitle(QCoreApplication::applicationName());
    setAcceptDrops(true);
    auto *const central = new QWidget(this);
    auto *const columns = new QHBoxLayout;
    columns->setSpacing(28);
    columns->addWidget(makeWelcome());
    columns->addWidget(makeRecentList(), 1);
    m_message = new MessageLine(central);
    auto *const layout = new QVBoxLayout(central);
    layout->setContentsMargins(28, 24, 24, 20);
    layout->setSpacing(14);
    layout->addLayout(columns, 1);
    layout->addWidget(m_message);
    setCentralWidget(central);
    resize(QSize(760, 480).boundedTo(screen()->availableSize() * 0.9));
    connect(&m_defaults, &UserDefaults::changed, this, [this](const QString &key) {
        if (key == PreferenceKey::showOpenDialog)
            showSetting();
    });
    showSetting();
    connect(&m_recentFiles, &RecentFiles::changed, this, &StartWindow::fillRecentList);
    fillRecentList();
}

QWidget *StartWindow::makeWelcome()
{
    auto *const welcome = new QWidget(this);
    auto *const logo = new QLabel(welcome);
    logo->setPixmap(QIcon(QStringLiteral(":/icons/vantrell.svg")).pixmap(logoSide, logoSide));
    auto *const name = new QLabel(QCoreApplication::applicationName(), welcome);
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    name->setFont(font);
    auto *const purpose = new QLabel(tr("Media, effects and markers\nof an editing project"), welcome);
    auto *const open = new QPushButton(tr("&Open…"), welcome);
    open->setDefault(true);
    open->setToolTip(tr("Choose a project or an XML file"));
    connect(open, &QPushButton::clicked, this, &StartWindow::openRequested);
    auto *const sample = new QPushButton(tr("Open Sam&ple Project"), welcome);
    sample->setToolTip(tr("Try the program with a copy of a small project that has something of everything"));
    connect(sample, &QPushButton::clicked, this, &StartWindow::sampleRequested);
    m_dropArea = new DropArea(tr("Drop a project or\nan XML file here"), welcome);
    m_dropArea->setAlignment(Qt::AlignCenter);
    m_dropArea->setMinimumSize(220, 96);
    auto *const layout = new QVBoxLayout(welcome);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    for (QWidget *const widget : {logo, name, purpose})
        layout->addWidget(widget, 0, Qt::AlignHCenter);
    purpose->setAlignment(Qt::AlignHCenter);
    layout->addStretch(1);
    layout->addWidget(open);
    layout->addWidget(sample);
    layout->addWidget(m_dropArea);
    return welcome;
}

QWidget *StartWindow::makeRecentList()
{
    auto *const side = new QWidget(this);
    auto *const title = new QLabel(tr("&Recent projects"), side);
    m_list = new QListWidget(side);
    m_list->setAccessibleName(tr("Recent projects"));
    m_list->setIconSize({24, 24});
    m_list->setSpacing(2);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    title->setBuddy(m_list);
    connect(m_list, &QListWidget::itemActivated, this, [this](const QListWidgetItem *item) {
        const QString path = item->data(Qt::UserRole).toString();
        if (!path.isEmpty())
            Q_EMIT recentFileChosen(path);
    });
    m_showsOpenDialog = new QCheckBox(tr("&Show the open dialog at start-up"), side);
    connect(m_showsOpenDialog, &QCheckBox::clicked, this, [this](bool isChecked) {
        m_defaults.setValue(PreferenceKey::showOpenDialog, isChecked ? 1 : 0);
    });
    auto *const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_showsOpenDialog);
    return side;
}

void StartWindow::fillRecentList()
{
    m_list->clear();
    const QIcon icon = themeIcon({QStringLiteral("text-xml")}, QStringLiteral(":/icons/open.svg"));
    for (const QString &path : m_recentFiles.paths()) {
        const QString folder = m_recentFiles.isFCPProject(path)
                                   ? tr("%1, in Final Cut Pro").arg(shownFolder(path))
                                   : shownFolder(path);
        auto *const item =
            new QListWidgetItem(icon, QFileInfo(path).fileName() + QLatin1Char('\n') + folder, m_list);
        item->setData(Qt::UserRole, path);
        item->setToolTip(path);
    }
    if (m_list->count() == 0) {
        auto *const none = new QListWidgetItem(tr("Projects that you open are listed here."), m_list);
        none->setFlags(Qt::NoItemFlags);
        none->setForeground(palette().placeholderText()); // more than that of disabled items
    } else {
        m_list->setCurrentRow(0);
    }
}

void StartWindow::showSetting()
{
    m_showsOpenDialog->setChecked(m_defaults.integer(PreferenceKey::showOpenDialog) == 1);
}

void StartWindow::showMessage(const QString &text, const QString &path)
{
    m_message->setMessage(text, path);
}

void StartWindow::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        showMessage(QString());
    QMainWindow::showEvent(event);
}

void StartWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT closed();
}

void StartWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!FilePanel::acceptFiles(*event))
        return;
    m_dropArea->setProperty("isTarget", true);
    m_dropArea->update();
}

void StartWindow::dragMoveEvent(QDragMoveEvent *event)
{
    FilePanel::acceptFiles(*event);
}

void StartWindow::dragLeaveEvent(QDragLeaveEvent *)
{
    m_dropArea->setProperty("isTarget", false);
    m_dropArea->update();
}

void StartWindow::dropEvent(QDropEvent *event)
{
    dragLeaveEvent(nullptr);
    if (FilePanel::acceptFiles(*event))
        Q_EMIT filesChosen(FilePanel::localFiles(event->mimeData()));
}

} // namespace vantrell

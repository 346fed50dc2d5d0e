#include "support/widgets/FilePanel.h"

#include "support/widgets/GoBack.h"
#include "support/widgets/ReplaceQuestion.h"

#include <QDropEvent>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QMimeData>
#include <QScreen>
#include <QTreeView>
#include <QUrl>

#include <algorithm>
#include <memory>

namespace vantrell::FilePanel
{

namespace
{

/// The list of a panel: the name takes the width that the other columns leave.
class PanelColumns final : public QObject
{
public:
    PanelColumns(QFileDialog &panel, QTreeView &list, const QFileSystemModel &files)
        : QObject(&panel)
        , m_panel(panel)
        , m_list(list)
    {
        m_list.viewport()->installEventFilter(this);
        QObject::connect(&files, &QFileSystemModel::directoryLoaded, this, [this] { fit(); });
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            giveNameTheRest();
        else if (event->type() == QEvent::Show)
            fit();
        return false;
    }

private:
    void fit()
    {
        const QHeaderView &header = *m_list.header();
        for (int column = 1; column < header.count(); ++column) {
            if (!header.isSectionHidden(column))
                m_list.resizeColumnToContents(column);
        }
        if (m_list.isVisible() && !m_isWidened)
            widen();
        giveNameTheRest();
    }
    void widen()
    {
        constexpr int longestName = 50; // characters of average width
        m_isWidened = m_list.model()->rowCount(m_list.rootIndex()) > 0;
        const auto &view = static_cast<const QAbstractItemView &>(m_list);
        const int name = std::clamp(view.sizeHintForColumn(0), smallestName(),
                                    m_list.fontMetrics().averageCharWidth() * longestName);
        const int missing = name + others() - m_list.viewport()->width();
        const int room = m_panel.screen()->availableGeometry().width() - m_panel.frameGeometry().width();
        if (missing > 0 && room > 0)
            m_panel.resize(m_panel.width() + std::min(missing, room), m_panel.height());
    }
    void giveNameTheRest()
    {
        m_list.header()->resizeSection(0, std::max(smallestName(), m_list.viewport()->width() - others()));
    }
    int smallestName() const { return m_list.fontMetrics().averageCharWidth() * 20; }
    int others() const
    {
        int width = 0;
        for (int column = 1; column < m_list.header()->count(); ++column)
            width += m_list.header()->sectionSize(column);
        return width;
    }

    QFileDialog &m_panel;
    QTreeView &m_list;
    bool m_isWidened = false; ///< for the first folder; after that the size is the user's
};

/// The list of a panel of the program's own; null in a panel of the platform.
QTreeView *listOf(const QFileDialog &panel)
{
    return panel.findChild<QTreeView *>(QStringLiteral("treeView"));
}

QFileDialog *makeDialog(const Request &request, QFileDialog::AcceptMode mode,
                        const std::function<void(const QStringList &)> &chosen)
{
    auto *const dialog = new QFileDialog(request.window, request.title, request.folder, request.filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setAcceptMode(mode);
    fitColumns(*dialog);
    if (!request.acceptLabel.isNull())
        dialog->setLabelText(QFileDialog::Accept, request.acceptLabel);
    QObject::connect(dialog, &QDialog::accepted, request.window, [dialog, chosen, window = request.window] {
        goBackTo(*window);
        dialog->hide();
        chosen(dialog->selectedFiles());
    });
    return dialog;
}

} // namespace

void runForOpening(const Request &request, const std::function<void(const QStringList &)> &chosen)
{
    QFileDialog *const dialog = makeDialog(request, QFileDialog::AcceptOpen, chosen);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setOption(QFileDialog::ReadOnly); // without the button that makes folders
    dialog->open();
}

void runForFolder(const Request &request, const std::function<void(const QString &)> &chosen)
{
    QFileDialog *const dialog = makeDialog(request, QFileDialog::AcceptOpen,
                                           [chosen](const QStringList &paths) { chosen(paths.value(0)); });
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->open();
}

void runForSaving(const Request &request, const std::function<void(const QString &)> &chosen,
                  const std::function<void()> &cancelled)
{
    // Panels of the platform ask themselves, about the name as it was typed. QFileDialog would add the
    // extension after that.
    const auto asksItself = std::make_shared<bool>(true);
    const auto complete = [request, chosen, cancelled, asksItself](const QStringList &paths) {
        const QFileInfo typed(paths.value(0));
        const bool isWhole = request.extension.isEmpty() || typed.fileName().contains(QLatin1Char('.'));
        const QString path =
            isWhole ? typed.filePath() : typed.filePath() + QLatin1Char('.') + request.extension;
        if ((isWhole && *asksItself) || !QFileInfo::exists(path)) {
            chosen(path);
            return;
        }
        askToReplace(path, request.window, [request, chosen, cancelled, path](bool replaces) {
            if (replaces) {
                chosen(path);
                return;
            }
            Request again = request;
            again.folder = QFileInfo(path).path();
            again.proposedName = QFileInfo(path).fileName();
            runForSaving(again, chosen, cancelled);
        });
    };
    QFileDialog *const dialog = makeDialog(request, QFileDialog::AcceptSave, complete);
    if (listOf(*dialog)) {
        *asksItself = false;
        dialog->setOption(QFileDialog::DontConfirmOverwrite);
    }
    dialog->selectFile(request.proposedName);
    if (cancelled)
        QObject::connect(dialog, &QDialog::rejected, request.window, cancelled);
    dialog->open();
}

void fitColumns(QFileDialog &panel)
{
    QTreeView *const list = listOf(panel);
    const auto *const files = panel.findChild<QFileSystemModel *>();
    if (list && files)
        new PanelColumns(panel, *list, *files);
}

QStringList localFiles(const QMimeData *data)
{
    QStringList paths;
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

bool acceptFiles(QDropEvent &event)
{
    const Qt::DropActions offered = event.possibleActions();
    if (!(offered & (Qt::CopyAction | Qt::LinkAction)) || localFiles(event.mimeData()).isEmpty()) {
        event.ignore();
        return false;
    }
    event.setDropAction(offered.testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::LinkAction);
    event.accept();
    return true;
}

} // namespace vantrell::FilePanel

#pragma once

#include "document/widgets/DocumentWindow.h"
#include "table/widgets/TabPane.h"
#include "table/widgets/TableModel.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include <functional>
#include <memory>

namespace vantrell
{

/// The sample project in a folder, as a file that a test may change, without its media.
inline QString copySample(const QString &folder)
{
    const QDir samples(qEnvironmentVariable("VANTRELL_SOURCE_DIR") + QStringLiteral("/samples"));
    QDir().mkpath(folder);
    const QString path = QDir(folder).filePath(QStringLiteral("Harbour Lights.xml"));
    QFile::remove(path);
    if (!QFile::copy(samples.filePath(QStringLiteral("Harbour Lights.xml")), path))
        qFatal("The sample could not be copied.");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    return path;
}

/// The visible alert box, or null.
inline QMessageBox *visibleBox()
{
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        auto *const box = qobject_cast<QMessageBox *>(widget);
        if (box && box->isVisible())
            return box;
    }
    return nullptr;
}

/// Presses the button with that title; false when the box has none.
inline bool press(QMessageBox *box, const QString &title)
{
    for (QAbstractButton *const button : box->buttons()) {
        if (button->text().remove(QLatin1Char('&')) == title) {
            button->click();
            return true;
        }
    }
    return false;
}

/// Presses that button of the next alert while the operation that raised it waits.
inline void pressLater(const QString &title)
{
    auto *const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, title] {
        QMessageBox *const box = visibleBox();
        if (box && press(box, title))
            timer->deleteLater();
    });
    timer->start(5);
}

/// Calls `look` when an alert has been open for that many milliseconds, while the operation that raised it
/// waits.
inline void whenAsked(int milliseconds, const std::function<void(QMessageBox *)> &look)
{
    auto *const timer = new QTimer(qApp);
    const auto since = std::make_shared<QElapsedTimer>();
    QObject::connect(timer, &QTimer::timeout, timer, [timer, since, milliseconds, look] {
        QMessageBox *const box = visibleBox();
        if (box && !since->isValid())
            since->start();
        if (!box || since->elapsed() < milliseconds)
            return;
        timer->stop();
        timer->deleteLater();
        look(box);
    });
    timer->start(5);
}

/// The visible open or save panel, or null.
inline QFileDialog *visiblePanel()
{
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        auto *const panel = qobject_cast<QFileDialog *>(widget);
        if (panel && panel->isVisible())
            return panel;
    }
    return nullptr;
}

/// Accepts the visible panel with that path.
inline void choosePath(const QString &path)
{
    QFileDialog *const panel = visiblePanel();
    panel->selectFile(path);
    QMetaObject::invokeMethod(panel, "accept");
}

/// The commands of all menus of the window.
inline QList<QAction *> actionsOf(const QMainWindow &window)
{
    QList<QAction *> actions;
    for (const QMenu *const menu : window.menuBar()->findChildren<QMenu *>())
        actions += menu->actions();
    return actions;
}

/// The command with that title, in the menu with that title if given; or null.
inline QAction *commandOf(const QMainWindow &window, const QString &title, const QString &menu = QString())
{
    for (QAction *const action : actionsOf(window)) {
        const auto *const parent = qobject_cast<QMenu *>(action->parent());
        if (!menu.isEmpty() && (!parent || parent->title().remove(QLatin1Char('&')) != menu))
            continue;
        if (action->text().remove(QLatin1Char('&')) == title)
            return action;
    }
    return nullptr;
}

/// Triggers the menu's command; false when it is disabled.
inline bool trigger(const QMainWindow &window, const QString &title, const QString &menu = QString())
{
    QAction *const action = commandOf(window, title, menu);
    if (!action || !action->isEnabled())
        return false;
    action->trigger();
    return true;
}

/// Saves, under another path if given, and waits for the result.
inline bool saves(DocumentWindow &window, const QString &path = QString())
{
    QSignalSpy saved(&window, &DocumentWindow::saved);
    window.saveTo(path.isEmpty() ? window.path() : path);
    const bool hasEnded = !saved.isEmpty() || saved.wait(30000);
    return hasEnded && saved.at(0).at(0).toBool();
}

/// The line below the table of markers.
inline QString statusOf(const DocumentWindow &window)
{
    for (const QLabel *const label : window.pane(Tab::Markers).findChildren<QLabel *>()) {
        if (label->isVisible() && label->text().contains(QStringLiteral("marker")))
            return label->text();
    }
    return QString();
}

/// The texts of a column, from the top.
inline QStringList columnTexts(const DocumentWindow &window, Tab tab, const QString &column)
{
    const TableModel &model = window.pane(tab).model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, model.columnOf(column)).data().toString());
    return texts;
}

/// Edits a cell as its editor does: selects the row and passes the text to the model.
inline bool editCell(DocumentWindow &window, Tab tab, int row, const QString &column, const QVariant &value,
                     int role = Qt::EditRole)
{
    TabPane &pane = window.pane(tab);
    pane.selectRows({std::size_t(row)});
    TableModel &model = pane.model();
    return model.setData(model.index(row, model.columnOf(column)), value, role);
}

} // namespace vantrell

#include "media/widgets/MediaTableModel.h"

#include "media/MediaDrives.h"
#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "support/threads/MainThread.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/TableIcons.h"

#include <QGuiApplication>
#include <QPalette>
#include <QPointer>
#include <QTextDocument>

namespace vantrell
{

namespace
{

/// That of an error, readable on the ground of tables.
QColor missingColor()
{
    const bool isDark = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(255, 146, 130) : QColor(176, 16, 28);
}

} // namespace

MediaTableModel::MediaTableModel(MyDocument &document, QObject *parent)
    : TableModel(document, Tab::Media, parent)
{
    const auto late = [model = QPointer(this)](const QStringList &folders) {
        MainThread::post([model, folders] {
            if (!model)
                return;
            model->setVolumesFolders(folders);
            model->rowsChanged(0, model->rowCount() - 1);
        });
    };
    setVolumesFolders(answeringVolumesFolders(late));
}

void MediaTableModel::setVolumesFolders(const QStringList &answering)
{
    m_volumesFolders = QStringList(QStringLiteral("/Volumes")) + answering;
}

QString MediaTableModel::volumeOf(const QString &directory, const QStringList &volumesFolders)
{
    for (const QString &folder : volumesFolders) {
        if (!directory.startsWith(folder))
            continue;
        const QStringList parts = directory.split(QLatin1Char('/'), Qt::SkipEmptyParts);
        const qsizetype index = folder.split(QLatin1Char('/'), Qt::SkipEmptyParts).size();
        return index < parts.size() ? folder + QLatin1Char('/') + parts[index] : QString();
    }
    return QStringLiteral("/");
}

QString MediaTableModel::text(const RowRecord &record, const Column &column) const
{
    if (column.key == MediaKey::missing)
        return isChecked(record, column) ? tr("missing") : QString();
    const QString text = TableModel::text(record, column);
    if (column.key == MediaKey::filesize)
        return shownSize(text);
    static const QStringList ownWords{MediaKey::filetype.text(), QStringLiteral("length"),
                                      QStringLiteral("used"), QStringLiteral("notes")};
    if (!ownWords.contains(column.identifier))
        return text;
    QStringList words = text.split(QStringLiteral(", "));
    for (QString &word : words)
        word = shownValue(word);
    return words.join(QStringLiteral(", "));
}

QIcon MediaTableModel::icon(const RowRecord &record, const Column &column) const
{
    if (column.key == MediaKey::filename && record.get(MediaKey::missing))
        return TableIcons::missing();
    if (column.key == MediaKey::filename && record.contains(MediaKey::filename))
        return TableIcons::file(record.get(MediaKey::filename));
    if (column.key == MediaKey::directory && record.contains(MediaKey::directory)) {
        const QString volume = volumeOf(record.get(MediaKey::directory));
        return volume.isNull() ? QIcon() : TableIcons::volume(volume);
    }
    return QIcon();
}

QVariant MediaTableModel::data(const QModelIndex &index, int role) const
{
    const bool isLook = role == Qt::ForegroundRole || role == Qt::ToolTipRole;
    if (!isLook || !index.isValid() || index.row() >= rowCount())
        return TableModel::data(index, role);
    const RowRecord &record = *recordAt(index.row());
    if (!record.get(MediaKey::missing))
        return TableModel::data(index, role);
    if (role == Qt::ToolTipRole)
        return Qt::convertFromPlainText(missingText(record), Qt::WhiteSpaceNormal);
    return columnAt(index.column()).key == MediaKey::filename ? QVariant(missingColor()) : QVariant();
}

QString MediaTableModel::missingText(const RowRecord &record) const
{
    const QString directory = record.get(MediaKey::directory);
    if (!record.contains(MediaKey::filename))
        return tr("Missing: the project has no usable address of this file");
    const QString path = MediaFile::joinedPath(directory, record.get(MediaKey::filename));
    const QString place = m_mappings.placeOf(record.get(MediaKey::rawpath), path);
    const QString drive = volumeOf(place.section(QLatin1Char('/'), 0, -2));
    const bool isDriveMissing = !m_drives.isEmpty() && !drive.isNull() && !m_drives.contains(drive);
    const QString reason =
        isDriveMissing
            ? tr("Missing: the drive “%1” is not connected").arg(drive.section(QLatin1Char('/'), -1))
            : tr("Missing: there is no such file. Relink… finds it in other folders");
    return place == path ? tr("%1\n%2").arg(path, reason)
                         : tr("%1\nlooked for at %2\n%3").arg(path, place, reason);
}

QString MediaTableModel::toolTip(const RowRecord &record, const Column &) const
{
    return MediaFile::joinedPath(record.get(MediaKey::directory), record.get(MediaKey::filename));
}

} // namespace vantrell

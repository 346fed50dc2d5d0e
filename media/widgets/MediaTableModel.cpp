#include "media/widgets/MediaTableModel.h"

#include "media/MediaDrives.h"
#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "support/threads/MainThread.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/TableIcons.h"

#include <QPointer>

namespace vantrell
{

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
    if (column.key == MediaKey::filename && record.contains(MediaKey::filename))
        return TableIcons::file(record.get(MediaKey::filename));
    if (column.key == MediaKey::directory && record.contains(MediaKey::directory)) {
        const QString volume = volumeOf(record.get(MediaKey::directory), m_volumesFolders);
        return volume.isNull() ? QIcon() : TableIcons::volume(volume);
    }
    return QIcon();
}

QString MediaTableModel::toolTip(const RowRecord &record, const Column &) const
{
    return MediaFile::joinedPath(record.get(MediaKey::directory), record.get(MediaKey::filename));
}

} // namespace vantrell

#include "handover/TransferText.h"

#include "media/MediaFile.h"

namespace vantrell
{

QString transferText(const ChecksumRun::Progress &progress)
{
    QString text = QStringLiteral("%1 of %2, %3 files read")
                       .arg(MediaFile::formatFileSize(double(progress.bytes)),
                            MediaFile::formatFileSize(double(progress.totalBytes)))
                       .arg(progress.files);
    const qint64 seconds = progress.left.count();
    if (seconds > 0)
        text += QStringLiteral(", %1:%2:%3 left")
                    .arg(seconds / 3600)
                    .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
                    .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    return text;
}

} // namespace vantrell

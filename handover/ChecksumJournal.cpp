#include "handover/ChecksumJournal.h"

#include "support/files/StandardFolders.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

namespace vantrell
{

namespace
{

constexpr qsizetype fieldCount = 7; // path, size, date, MD5, xxHash64, when they were made, and an end

const QByteArray end = QByteArrayLiteral(".");

QString journalPath(const QString &listPath)
{
    const QByteArray name = QCryptographicHash::hash(listPath.toUtf8(), QCryptographicHash::Sha1).toHex();
    return StandardFolders::userLibrary() + QStringLiteral("/vantrell/checksums/") +
           QString::fromLatin1(name);
}

} // namespace

ChecksumJournal::ChecksumJournal(const QString &listPath)
    : m_file(journalPath(listPath))
{
    if (m_file.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : m_file.readAll().split('\n')) {
            const QByteArrayList fields = line.split('\t');
            if (fields.size() != fieldCount || fields.last() != end)
                continue; // the last line may have been cut off
            ChecksumResult result;
            result.state = ChecksumResult::State::Done;
            result.size = fields[1].toLongLong();
            result.modified = fields[2].toLongLong();
            result.checksums = {fields[3], QByteArray(), fields[4]};
            result.made = QDateTime::fromMSecsSinceEpoch(fields[5].toLongLong(), Qt::UTC);
            m_known.insert(QByteArray::fromPercentEncoding(fields[0]), result);
        }
        m_file.close();
    }
}

std::optional<ChecksumResult> ChecksumJournal::find(const QByteArray &path, std::int64_t size,
                                                    std::int64_t modified) const
{
    const auto known = m_known.constFind(path);
    const bool holds = known != m_known.constEnd() && known->size == size && known->modified == modified;
    return holds ? std::optional(*known) : std::nullopt;
}

void ChecksumJournal::add(const QByteArray &path, const ChecksumResult &result)
{
    if (!m_file.isOpen() &&
        (!QDir().mkpath(QFileInfo(m_file).path()) || !m_file.open(QIODevice::WriteOnly | QIODevice::Append)))
        return;
    const QByteArrayList fields{path.toPercentEncoding("/"),
                                QByteArray::number(qlonglong(result.size)),
                                QByteArray::number(qlonglong(result.modified)),
                                result.checksums.md5,
                                result.checksums.xxhash64,
                                QByteArray::number(result.made.toMSecsSinceEpoch()),
                                end};
    m_file.write(fields.join('\t') + '\n');
    m_file.flush();
}

void ChecksumJournal::remove()
{
    m_file.close();
    m_file.remove();
}

} // namespace vantrell

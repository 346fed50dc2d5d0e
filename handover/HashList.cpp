#include "handover/HashList.h"

#include "support/text/TextNumbers.h"
#include "xml/XmlDocument.h"

#include <QDir>
#include <QFileInfo>
#include <QSysInfo>
#include <QXmlStreamWriter>

#include <algorithm>

#include <pwd.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

QString isoDate(const QDateTime &date)
{
    return date.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ"));
}

QDateTime dateOf(XmlNode element)
{
    const QDateTime date = QDateTime::fromString(element.stringValue().trimmed(), Qt::ISODate);
    return date.isValid() ? date.toUTC() : QDateTime();
}

QByteArray digestOf(XmlNode element)
{
    return element.stringValue().trimmed().toLower().toLatin1();
}

/// Eight bytes in hexadecimal digits in the other order.
QByteArray turned(const QByteArray &hex)
{
    QByteArray bytes = QByteArray::fromHex(hex);
    std::reverse(bytes.begin(), bytes.end());
    return bytes.toHex();
}

bool isXmlText(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) {
        return (c.unicode() < 0x20 && c != u'\t' && c != u'\n') || c.unicode() >= 0xFFFE;
    });
}

QString userName()
{
    const passwd *const user = ::getpwuid(::getuid());
    return user ? QString::fromLocal8Bit(user->pw_name) : QString();
}

QString fullUserName()
{
    const passwd *const user = ::getpwuid(::getuid());
    const QString name = user ? QString::fromLocal8Bit(user->pw_gecos).section(u',', 0, 0) : QString();
    return name.isEmpty() ? userName() : name;
}

bool exists(const QString &path)
{
    return QFileInfo::exists(path);
}

} // namespace

bool HashListEntry::agreesWith(const Checksums &found) const
{
    const auto agrees = [](const QByteArray &wanted, const QByteArray &other) {
        return wanted.isEmpty() || wanted == other;
    };
    const bool isKnown =
        !checksums.md5.isEmpty() || !checksums.sha1.isEmpty() || !checksums.xxhash64.isEmpty();
    return isKnown && agrees(checksums.md5, found.md5) && agrees(checksums.sha1, found.sha1) &&
           (agrees(checksums.xxhash64, found.xxhash64) || checksums.xxhash64 == turned(found.xxhash64));
}

ChecksumKinds HashListEntry::kinds() const
{
    return {!checksums.md5.isEmpty(), !checksums.sha1.isEmpty(), !checksums.xxhash64.isEmpty()};
}

QString HashList::entryName(const QString &path, const QString &listFolder)
{
    const QString folder = listFolder.endsWith(u'/') ? listFolder : listFolder + u'/';
    return path.startsWith(folder) ? path.sliced(folder.size()) : path;
}

QString HashList::placeOf(const QString &entry, const QString &listFolder)
{
    const auto place = [&listFolder](const QString &name) { return QDir(listFolder).filePath(name); };
    const QString written = place(entry);
    if (exists(written))
        return written;
    QString slashes = entry;
    slashes.replace(u'\\', u'/');
    for (const QString &name : {slashes, slashes.normalized(QString::NormalizationForm_C),
                                slashes.normalized(QString::NormalizationForm_D)}) {
        if (exists(place(name)))
            return place(name);
    }
    return written;
}

Result<QByteArray> HashList::toBytes() const
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(2);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("hashlist"));
    writer.writeAttribute(QStringLiteral("version"), QStringLiteral("1.1"));
    writer.writeStartElement(QStringLiteral("creatorinfo"));
    writer.writeTextElement(QStringLiteral("name"), fullUserName());
    writer.writeTextElement(QStringLiteral("username"), userName());
    writer.writeTextElement(QStringLiteral("hostname"), QSysInfo::machineHostName());
    writer.writeTextElement(QStringLiteral("tool"), tool);
    writer.writeTextElement(QStringLiteral("startdate"), isoDate(started));
    writer.writeTextElement(QStringLiteral("finishdate"), isoDate(finished));
    writer.writeEndElement();
    for (const HashListEntry &entry : entries) {
        if (!isXmlText(entry.file))
            return Failure{QStringLiteral("The name \"%1\" cannot stand in an XML file.").arg(entry.file)};
        const auto write = [&writer](const char *name, const QString &text) {
            if (!text.isEmpty())
                writer.writeTextElement(QString::fromLatin1(name), text);
        };
        writer.writeStartElement(QStringLiteral("hash"));
        write("file", entry.file);
        write("size", entry.size ? QString::number(*entry.size) : QString());
        write("lastmodificationdate", entry.modified.isNull() ? QString() : isoDate(entry.modified));
        write("md5", QString::fromLatin1(entry.checksums.md5));
        write("sha1", QString::fromLatin1(entry.checksums.sha1));
        write("xxhash64be", QString::fromLatin1(entry.checksums.xxhash64));
        write("hashdate", entry.made.isNull() ? QString() : isoDate(entry.made));
        writer.writeEndElement();
    }
    writer.writeEndElement();
    writer.writeEndDocument();
    return bytes;
}

Result<HashList> HashList::fromFile(const QString &path)
{
    XmlDocument::LoadOptions options;
    options.tolerant = false;
    options.failure = QStringLiteral("The file \"%1\" is no media hash list: %2");
    const Result<std::unique_ptr<XmlDocument>> document = XmlDocument::fromFile(path, options);
    if (!document)
        return document.failure();
    const XmlNode root = document.value()->rootElement();
    if (!root.isElement("hashlist"))
        return Failure{QStringLiteral("The file \"%1\" is no media hash list.").arg(path)};
    HashList list;
    const XmlNode creator = root.childElement("creatorinfo");
    list.tool = creator.childElement("tool").stringValue();
    list.started = dateOf(creator.childElement("startdate"));
    list.finished = dateOf(creator.childElement("finishdate"));
    for (XmlNode hash = root.firstChildElement(); hash; hash = hash.nextSiblingElement()) {
        const QString file = hash.childElement("file").stringValue();
        if (!hash.hasName("hash") || file.isEmpty())
            continue;
        HashListEntry entry;
        entry.file = file;
        if (const XmlNode size = hash.childElement("size"))
            entry.size = integerValue(size.stringValue());
        entry.modified = dateOf(hash.childElement("lastmodificationdate"));
        entry.made = dateOf(hash.childElement("hashdate"));
        entry.checksums.md5 = digestOf(hash.childElement("md5"));
        entry.checksums.sha1 = digestOf(hash.childElement("sha1"));
        entry.checksums.xxhash64 = digestOf(hash.childElement("xxhash64be"));
        if (entry.checksums.xxhash64.isEmpty())
            entry.checksums.xxhash64 = digestOf(hash.childElement("xxhash64"));
        list.entries.push_back(std::move(entry));
    }
    return list;
}

} // namespace vantrell

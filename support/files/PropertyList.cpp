#include "support/files/PropertyList.h"

#include "support/files/FileUtilities.h"
#include "support/text/TextNumbers.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <plist/plist.h>

namespace vantrell::PropertyList
{

namespace
{

constexpr qsizetype maximumBytes = 256 * 1024 * 1024;
constexpr int maximumValues = 1'000'000;

/// libplist counts its dates from this second.
constexpr qint64 dateEpoch = 978307200; // 2001-01-01T00:00:00Z in seconds since 1970

struct NodeDeleter {
    void operator()(void *node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, NodeDeleter>;

struct FreeDeleter {
    void operator()(void *memory) const { std::free(memory); }
};
using Memory = std::unique_ptr<void, FreeDeleter>;

/// Gives the current thread the decimal point of the C locale while it lives: libplist reads and
/// writes numbers as the locale says.
class NumberLocale
{
public:
    NumberLocale()
        : m_previous(uselocale(shared()))
    {
    }
    NumberLocale(const NumberLocale &) = delete;
    NumberLocale &operator=(const NumberLocale &) = delete;
    ~NumberLocale() { uselocale(m_previous); }

private:
    static locale_t shared()
    {
        static const locale_t locale = newlocale(LC_NUMERIC_MASK, "C", nullptr);
        return locale;
    }

    const locale_t m_previous;
};

Failure damaged(const QString &reason)
{
    return Failure{QStringLiteral("The property list is damaged: %1.").arg(reason)};
}

Failure tooDeep()
{
    return Failure{QStringLiteral("The property list nests more than %1 levels.").arg(maximumDepth)};
}

/// libplist takes what is not closed, and its recursion has no end: whether the XML is whole and
/// within the limits is settled before it sees the text.
Result<void> checkXml(const QString &text)
{
    QXmlStreamReader reader(text);
    int depth = 0;
    int values = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            // The root element and the innermost value are levels of their own.
            if (++depth > maximumDepth + 2)
                return tooDeep();
            if (++values > 2 * maximumValues)
                return damaged(QStringLiteral("it holds too many values"));
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::DTD:
            if (reader.text().contains(u'['))
                return damaged(QStringLiteral("it declares entities"));
            break;
        default:
            break;
        }
    }
    if (reader.hasError())
        return damaged(QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString()));
    return {};
}

/// Walks the objects of a binary list before libplist does: shared references can make a small file
/// unfold without end.
class BinaryCheck
{
public:
    explicit BinaryCheck(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    Result<void> run()
    {
        const qsizetype trailer = m_bytes.size() - 32;
        if (trailer < 8)
            return damaged(QStringLiteral("it is too short"));
        m_offsetSize = byte(trailer + 6);
        m_referenceSize = byte(trailer + 7);
        m_count = number(trailer + 8, 8);
        m_table = number(trailer + 24, 8);
        const quint64 top = number(trailer + 16, 8);
        if (m_offsetSize < 1 || m_offsetSize > 8 || m_referenceSize < 1 || m_referenceSize > 8 ||
            m_table < 8 || m_table > static_cast<quint64>(trailer) ||
            m_count > (static_cast<quint64>(trailer) - m_table) / m_offsetSize)
            return damaged(QStringLiteral("its trailer is wrong"));
        return visit(top, 0, false);
    }

private:
    quint8 byte(qsizetype position) const { return static_cast<quint8>(m_bytes[position]); }

    quint64 number(qsizetype position, int size) const
    {
        quint64 result = 0;
        for (int i = 0; i < size; ++i)
            result = result << 8 | byte(position + i);
        return result;
    }

    Result<void> visit(quint64 object, int depth, bool isKey)
    {
        if (depth > maximumDepth)
            return tooDeep();
        if (object >= m_count)
            return damaged(QStringLiteral("an object is missing"));
        const quint64 offset = number(static_cast<qsizetype>(m_table + object * m_offsetSize), m_offsetSize);
        if (offset >= m_table || ++m_values > maximumValues)
            return damaged(QStringLiteral("an object is out of place"));
        qsizetype position = static_cast<qsizetype>(offset);
        const quint8 marker = byte(position++);
        const int kind = marker >> 4;
        quint64 size = marker & 0x0f;
        const bool isContainer = kind == 0xa || kind == 0xd;
        if (size == 0x0f && kind >= 0x4) {
            const int sizeBytes = position < m_bytes.size() ? 1 << (byte(position++) & 0x0f) : 0;
            if (sizeBytes < 1 || sizeBytes > 8 || position + sizeBytes > static_cast<qsizetype>(m_table))
                return damaged(QStringLiteral("a size is wrong"));
            size = number(position, sizeBytes);
            position += sizeBytes;
        }
        const quint64 left = m_table - static_cast<quint64>(position);
        if (!isContainer)
            return visitText(kind, position, size, left, isKey);
        const quint64 keyCount = kind == 0xd ? size : 0;
        if (size <= left)
            size += keyCount;
        if (size > left / m_referenceSize)
            return damaged(QStringLiteral("a size is wrong"));
        for (quint64 i = 0; i < size; ++i) {
            const quint64 member = number(position, m_referenceSize);
            if (const Result<void> visited = visit(member, depth + 1, i < keyCount); !visited)
                return visited;
            position += m_referenceSize;
        }
        return {};
    }

    Result<void> visitText(int kind, qsizetype position, quint64 size, quint64 left, bool isKey)
    {
        const qsizetype unit = kind == 0x6 ? 2 : 1;
        if (kind < 0x4 || kind > 0x7)
            return {};
        if (size > left / static_cast<quint64>(unit))
            return damaged(QStringLiteral("a size is wrong"));
        const qsizetype end = position + static_cast<qsizetype>(size) * unit;
        m_textBytes += end - position;
        if (m_textBytes > maximumBytes)
            return damaged(QStringLiteral("it holds too much text"));
        // libplist ends the process over a key that holds a null character.
        for (; isKey && position < end; position += unit) {
            if (number(position, static_cast<int>(unit)) == 0)
                return damaged(QStringLiteral("a key is wrong"));
        }
        return {};
    }

    const QByteArray &m_bytes;
    int m_offsetSize = 0;    // bytes of an entry of the offset table
    int m_referenceSize = 0; // bytes of a reference in an array or dictionary
    quint64 m_count = 0;     // entries of the offset table
    quint64 m_table = 0;     // where the offset table starts
    int m_values = 0;
    qsizetype m_textBytes = 0;
};

QVariant valueOf(plist_t node)
{
    uint64_t size = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        quint8 boolean = 0;
        plist_get_bool_val(node, &boolean);
        return boolean != 0;
    }
    case PLIST_UINT:
        plist_get_uint_val(node, &size);
        return static_cast<qint64>(size);
    case PLIST_UID:
        plist_get_uid_val(node, &size);
        return static_cast<qint64>(size);
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return number;
    }
    case PLIST_STRING: {
        const char *text = plist_get_string_ptr(node, &size);
        return QString::fromUtf8(text ? text : "", static_cast<qsizetype>(size));
    }
    case PLIST_DATE: {
        qint32 seconds = 0;
        qint32 microseconds = 0;
        plist_get_date_val(node, &seconds, &microseconds);
        return QDateTime::fromSecsSinceEpoch(dateEpoch + seconds, Qt::UTC);
    }
    case PLIST_DATA: {
        const char *data = plist_get_data_ptr(node, &size);
        return QByteArray(data, static_cast<qsizetype>(size));
    }
    case PLIST_ARRAY: {
        QVariantList array;
        plist_array_iter iterator = nullptr;
        plist_array_new_iter(node, &iterator);
        const Memory iteratorMemory(iterator);
        for (plist_t member = nullptr; plist_array_next_item(node, iterator, &member), member;)
            array.append(valueOf(member));
        return array;
    }
    case PLIST_DICT: {
        QVariantMap dictionary;
        plist_dict_iter iterator = nullptr;
        plist_dict_new_iter(node, &iterator);
        const Memory iteratorMemory(iterator);
        char *key = nullptr;
        for (plist_t member = nullptr; plist_dict_next_item(node, iterator, &key, &member), member;) {
            const Memory keyMemory(key);
            dictionary.insert(QString::fromUtf8(key), valueOf(member));
        }
        return dictionary;
    }
    default:
        return {};
    }
}

Result<QVariant> readValue(plist_t rawNode)
{
    const Node node(rawNode);
    QVariant value = node ? valueOf(node.get()) : QVariant();
    if (!value.isValid())
        return damaged(QStringLiteral("it holds no value"));
    return value;
}

/// The text in UTF-8 without what XML 1.0 cannot hold.
QByteArray writableText(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        const char16_t unit = character.unicode();
        if (character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            kept.append(character).append(text[++i]);
        } else if (unit >= 0x20 ? !character.isSurrogate() && unit < 0xfffe
                                : unit == u'\t' || unit == u'\n' || unit == u'\r') {
            kept.append(character);
        }
    }
    return kept.toUtf8();
}

bool hasForm(const QVariant &value)
{
    constexpr std::array others{QMetaType::QString,     QMetaType::QDateTime,    QMetaType::QByteArray,
                                QMetaType::QStringList, QMetaType::QVariantList, QMetaType::QVariantMap};
    return isNumber(value) || std::find(others.begin(), others.end(), value.typeId()) != others.end();
}

/// The node of a value that has a form; nothing when it nests too deep.
Node nodeOf(const QVariant &value, int depth)
{
    if (depth > maximumDepth)
        return nullptr;
    switch (value.typeId()) {
    case QMetaType::Bool:
        return Node(plist_new_bool(value.toBool() ? 1 : 0));
    case QMetaType::Double:
    case QMetaType::Float:
        return Node(plist_new_real(value.toDouble()));
    case QMetaType::QString:
        return Node(plist_new_string(writableText(value.toString()).constData()));
    case QMetaType::QDateTime: {
        constexpr qint64 farthest = std::numeric_limits<qint32>::max();
        const qint64 seconds = value.toDateTime().toSecsSinceEpoch() - dateEpoch;
        return Node(plist_new_date(static_cast<qint32>(std::clamp(seconds, -farthest, farthest)), 0));
    }
    case QMetaType::QByteArray: {
        const QByteArray data = value.toByteArray();
        return Node(plist_new_data(data.constData(), static_cast<quint64>(data.size())));
    }
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        Node array(plist_new_array());
        for (const QVariantList members = value.toList(); const QVariant &member : members) {
            if (!hasForm(member))
                continue;
            Node node = nodeOf(member, depth + 1);
            if (!node)
                return nullptr;
            plist_array_append_item(array.get(), node.release());
        }
        return array;
    }
    case QMetaType::QVariantMap: {
        Node dictionary(plist_new_dict());
        const QVariantMap members = value.toMap();
        for (auto member = members.cbegin(); member != members.cend(); ++member) {
            if (!hasForm(*member))
                continue;
            Node node = nodeOf(*member, depth + 1);
            if (!node)
                return nullptr;
            plist_dict_set_item(dictionary.get(), writableText(member.key()).constData(), node.release());
        }
        return dictionary;
    }
    default:
        return Node(plist_new_uint(static_cast<quint64>(value.toLongLong())));
    }
}

} // namespace

Result<QVariant> fromBytes(const QByteArray &bytes)
{
    if (bytes.size() > maximumBytes)
        return damaged(QStringLiteral("it is too large"));
    const NumberLocale locale;
    plist_t node = nullptr;
    if (bytes.startsWith("bplist")) {
        if (const Result<void> checked = BinaryCheck(bytes).run(); !checked)
            return checked.failure();
        plist_from_bin(bytes.constData(), static_cast<quint32>(bytes.size()), &node);
        return readValue(node);
    }
    const auto encoding = QStringConverter::encodingForData(bytes, u'<');
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    if (const Result<void> checked = checkXml(text); !checked)
        return checked.failure();
    const QByteArray utf8 = text.toUtf8();
    plist_from_xml(utf8.constData(), static_cast<quint32>(utf8.size()), &node);
    return readValue(node);
}

Result<QVariant> fromFile(const QString &path)
{
    const Result<QByteArray> bytes = FileUtilities::readFile(path);
    if (!bytes)
        return bytes.failure();
    const Result<QVariant> value = fromBytes(bytes.value());
    if (!value)
        return Failure{QStringLiteral("The file \"%1\" could not be read. %2").arg(path, value.message())};
    return value;
}

Result<QByteArray> toBytes(const QVariant &value, Format format)
{
    if (!hasForm(value))
        return Failure{QStringLiteral("A property list cannot hold nothing.")};
    const NumberLocale locale;
    const Node node = nodeOf(value, 0);
    if (!node)
        return tooDeep();
    char *rawBytes = nullptr;
    quint32 size = 0;
    if (format == Format::Xml)
        plist_to_xml(node.get(), &rawBytes, &size);
    else
        plist_to_bin(node.get(), &rawBytes, &size);
    const Memory memory(rawBytes);
    if (!rawBytes)
        return Failure{QStringLiteral("The property list could not be written.")};
    return QByteArray(rawBytes, static_cast<qsizetype>(size));
}

Result<void> toFile(const QVariant &value, const QString &path, Format format)
{
    const Result<QByteArray> bytes = toBytes(value, format);
    return bytes ? FileUtilities::writeAtomically(path, bytes.value()) : Result<void>(bytes.failure());
}

bool isNumber(const QVariant &value)
{
    constexpr std::array types{QMetaType::Bool,  QMetaType::Int,       QMetaType::UInt,
                               QMetaType::Long,  QMetaType::ULong,     QMetaType::LongLong,
                               QMetaType::Float, QMetaType::ULongLong, QMetaType::Double};
    return std::find(types.begin(), types.end(), value.typeId()) != types.end();
}

bool boolean(const QVariant &value)
{
    if (value.typeId() != QMetaType::QString)
        return isNumber(value) && value.toDouble() != 0;
    static const QRegularExpression truth(QStringLiteral("^\\s*[-+]?0*[1-9YyTt]"));
    return truth.match(value.toString()).hasMatch();
}

qint64 integer(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return integerValue(value.toString());
    if (value.typeId() != QMetaType::Double && value.typeId() != QMetaType::Float)
        return isNumber(value) ? value.toLongLong() : 0;
    constexpr double limit = 9223372036854775808.0; // 2^63
    const double number = value.toDouble();
    if (number >= limit)
        return std::numeric_limits<qint64>::max();
    if (number < -limit)
        return std::numeric_limits<qint64>::min();
    return std::isnan(number) ? 0 : static_cast<qint64>(number);
}

QString text(const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return QString::number(value.toInt());
    return value.typeId() == QMetaType::QString || isNumber(value) ? value.toString() : QString();
}

} // namespace vantrell::PropertyList

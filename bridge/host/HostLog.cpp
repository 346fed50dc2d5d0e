#include "bridge/host/HostLog.h"

#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"
#include "bridge/host/HostMessages.h"

#include <nlohmann/json.hpp>

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace vantrell
{

namespace
{

using Json = nlohmann::ordered_json;

Json valueJson(const EventDescriptor &value);

Json typedJson(const EventDescriptor &value)
{
    return {{"type", value.type().text().toStdString()}, {"value", valueJson(value)}};
}

Json parametersJson(const std::vector<EventParameter> &parameters)
{
    Json list = Json::array();
    for (const EventParameter &parameter : parameters) {
        Json entry = {{"keyword", parameter.keyword.text().toStdString()}};
        entry.update(typedJson(parameter.value));
        list.push_back(std::move(entry));
    }
    return list;
}

Json valueJson(const EventDescriptor &value)
{
    if (value.isList()) {
        Json list = Json::array();
        for (const EventDescriptor &item : value.items())
            list.push_back(typedJson(item));
        return list;
    }
    if (value.isRecord())
        return parametersJson(value.fields());
    if (const auto reference = value.toFileReference()) {
        Json file = Json::object();
        if (const auto path = pathForFileReference(*reference))
            file["path"] = path->toStdString();
        file["length"] = reference->size();
        return file;
    }
    if (const auto flag = value.toBool())
        return *flag;
    if (const auto number = value.toInteger())
        return *number;
    if (const auto signature = value.toSignature())
        return signature->text().toStdString();
    if (value.isNull())
        return nullptr;
    return value.bytes().toStdString();
}

} // namespace

Result<HostLog> HostLog::open(const QString &path)
{
    HostLog log;
    log.m_file = Descriptor(
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600));
    if (!log.m_file.isOpen())
        return Failure{
            QStringLiteral("The file \"%1\" could not be opened: %2.").arg(path, qt_error_string(errno))};
    return log;
}

void HostLog::append(const EventRecord &event) const
{
    if (!m_file.isOpen())
        return;
    // One call per line, so that lines of different threads do not mix.
    const QByteArray line = json(event) + '\n';
    if (::write(m_file.number(), line.constData(), std::size_t(line.size())) != line.size())
        hostMessage(QStringLiteral("an event could not be logged: %1.").arg(qt_error_string(errno)));
}

QByteArray HostLog::json(const EventRecord &event)
{
    const Json line = {{"class", event.eventClass.text().toStdString()},
                       {"id", event.identifier.text().toStdString()},
                       {"address", typedJson(event.address)},
                       {"returnId", event.returnId},
                       {"transaction", event.transaction},
                       {"sendMode", event.sendMode},
                       {"priority", event.priority},
                       {"timeoutTicks", event.timeout},
                       {"parameters", parametersJson(event.parameters)}};
    return QByteArray::fromStdString(line.dump(-1, ' ', false, Json::error_handler_t::replace));
}

} // namespace vantrell

#include "rows/json/JsonText.h"

#include <nlohmann/json.hpp>

namespace vantrell
{

std::string jsonText(const QString &text)
{
    return text.toUtf8().toStdString();
}

Json parseJson(const QByteArray &text)
{
    return Json::parse(text.begin(), text.end(), nullptr, false);
}

QByteArray toBytes(const Json &json)
{
    const std::string text = json.dump(-1, ' ', false, Json::error_handler_t::replace);
    return QByteArray(text.data(), qsizetype(text.size())) + '\n';
}

} // namespace vantrell

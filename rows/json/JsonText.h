#pragma once

#include <nlohmann/json_fwd.hpp>

#include <QByteArray>
#include <QString>

#include <string>

namespace vantrell
{

using Json = nlohmann::ordered_json;

/// The text for JSON; unpaired surrogates become replacement characters.
std::string jsonText(const QString &text);

/// Parses UTF-8 text; a discarded value when it is not JSON.
Json parseJson(const QByteArray &text);

/// One JSON document as UTF-8, with a line end.
QByteArray toBytes(const Json &json);

} // namespace vantrell

#pragma once

#include <nlohmann/json_fwd.hpp>

#include <QByteArray>
#include <QString>

#include <string>

namespace vantrell::cli
{

using Json = nlohmann::ordered_json;

/// The text as JSON takes it; unpaired surrogates become replacement characters.
std::string jsonText(const QString &text);

/// The document that the UTF-8 text holds; discarded when it is none.
Json parseJson(const QByteArray &text);

/// One JSON document as UTF-8, with a line end.
QByteArray toBytes(const Json &json);

} // namespace vantrell::cli

#pragma once

#include "rows/RecordKey.h"
#include "xml/XmlNode.h"

#include <QString>

#include <cstdint>

namespace vantrell
{

/// Keys of an effect record: one filter or generator of the project. What the project does not say is
/// absent.
namespace EffectKey
{
/// The filter element, or the generator's own element.
inline const TypedKey<XmlNode> effectElement(u"effectElement");
/// 0 or 1.
inline const TypedKey<std::int64_t> enabled(u"enabled");
/// "Filter" or "Generator".
inline const TypedKey<QString> effectType(u"effectType");
inline const TypedKey<QString> name(u"name");
/// "Video" or "Audio", as a rule.
inline const TypedKey<QString> mediaType(u"mediaType");
/// Name and UUID of the nearest sequence around the element.
inline const TypedKey<QString> sequence(u"sequence");
inline const TypedKey<QString> sequenceUUID(u"sequenceUUID");
/// Name, UUID and id of the nearest clip item around the element, else of the nearest clip.
inline const TypedKey<QString> clip(u"clip");
inline const TypedKey<QString> clipUUID(u"clipUUID");
inline const TypedKey<QString> clipID(u"clipID");
} // namespace EffectKey

/// The values of "effectType".
namespace EffectType
{
inline const QString filter = QStringLiteral("Filter");
inline const QString generator = QStringLiteral("Generator");
/// What the type menu offers; no record has it.
inline const QString transition = QStringLiteral("Transition");
} // namespace EffectType

} // namespace vantrell

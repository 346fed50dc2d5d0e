#include "effects/EffectColumns.h"

#include "effects/EffectKeys.h"

namespace vantrell
{

namespace
{

using namespace Qt::StringLiterals;

QString enabledText(const RowRecord &effect)
{
    if (!effect.contains(EffectKey::enabled))
        return QString();
    return effect.get(EffectKey::enabled) != 0 ? u"yes"_s : u"no"_s;
}

} // namespace

const Columns effectColumns{
    {.identifier = u"enabled"_s,
     .title = u"Enabled"_s,
     .kind = Column::Kind::CheckBox,
     .edits = Column::Edits::Rows,
     .width = 11,
     .text = enabledText},
    {.identifier = u"name"_s, .title = u"Name"_s, .width = 28, .hasToolTip = true},
    {.identifier = u"effectType"_s, .title = u"Type"_s, .width = 13, .hasToolTip = true},
    {.identifier = u"mediaType"_s, .title = u"Media"_s, .width = 10, .hasToolTip = true},
    {.identifier = u"clip"_s,
     .title = u"Clip"_s,
     .width = 32,
     .elidesMiddle = true,
     .hasToolTip = true,
     .missingText = u"(null)"_s},
    {.identifier = u"sequence"_s,
     .title = u"Sequence"_s,
     .width = 34,
     .elidesMiddle = true,
     .hasToolTip = true,
     .missingText = u"(null)"_s},
};

} // namespace vantrell

#include "markers/MarkerColumns.h"

#include "markers/MarkerColors.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerTableValues.h"

namespace vantrell
{

namespace
{

using namespace Qt::StringLiterals;
using Kind = Column::Kind;
using Edits = Column::Edits;

QString colorText(const RowRecord &marker)
{
    const std::int64_t color = marker.get(MarkerKey::color);
    const bool isKnown = color >= 0 && color < std::int64_t(MarkerColors::count);
    return isKnown ? MarkerColors::table()[std::size_t(color)].label : QString::number(color);
}

Column::Text yesOrEmpty(const TypedKey<std::int64_t> &flag)
{
    return [flag](const RowRecord &marker) { return marker.get(flag) == 1 ? u"yes"_s : QString(); };
}

SortValue positionOf(MarkerTableValues::Point point)
{
    return [point](const RowRecord &marker) {
        return std::optional<RecordValue>(MarkerTableValues::absolutePosition(marker, point));
    };
}

} // namespace

const Columns markerColumns{
    {.identifier = u"color"_s,
     .name = u"Color"_s,
     .kind = Kind::PopUp,
     .edits = Edits::Rows,
     .width = 18,
     .hasToolTip = true,
     .text = colorText},
    {.identifier = u"name"_s, .title = u"Name"_s, .edits = Edits::Rows, .width = 28, .hasToolTip = true},
    {.identifier = u"comment"_s,
     .title = u"Comment"_s,
     .edits = Edits::Rows,
     .width = 32,
     .hasToolTip = true},
    {.identifier = u"in"_s,
     .title = u"In"_s,
     .edits = Edits::Rows,
     .width = 15,
     .text = MarkerTableValues::inText,
     .reportText = MarkerTableValues::inText,
     .sortValue = positionOf(MarkerTableValues::Point::In),
     .reversesWhole = true},
    {.identifier = u"out"_s,
     .title = u"Duration"_s,
     .edits = Edits::Rows,
     .width = 15,
     .text = MarkerTableValues::outText,
     .reportText = MarkerTableValues::reportedOutText,
     .sortValue = positionOf(MarkerTableValues::Point::Out),
     .reversesWhole = true},
    {.identifier = u"sequence"_s,
     .title = u"Sequence"_s,
     .nameKey = MarkerKey::sequenceName,
     .kind = Kind::PopUp,
     .edits = Edits::FirstRow,
     .width = 34,
     .elidesMiddle = true,
     .hasToolTip = true,
     .missingText = u"(null)"_s},
    {.identifier = u"clip"_s,
     .title = u"Clip"_s,
     .nameKey = MarkerKey::clipName,
     .kind = Kind::PopUp,
     .edits = Edits::FirstRow,
     .width = 32,
     .elidesMiddle = true,
     .hasToolTip = true,
     .missingText = u"(null)"_s},
    {.identifier = u"chapter"_s,
     .title = u"Chapter"_s,
     .kind = Kind::CheckBox,
     .edits = Edits::Rows,
     .width = 11,
     .text = yesOrEmpty(MarkerKey::chapter)},
    {.identifier = u"compression"_s,
     .title = u"Compression"_s,
     .kind = Kind::CheckBox,
     .edits = Edits::Rows,
     .text = yesOrEmpty(MarkerKey::compression)},
    {.identifier = u"scoring"_s,
     .title = u"Scoring"_s,
     .kind = Kind::CheckBox,
     .edits = Edits::Rows,
     .width = 11,
     .text = yesOrEmpty(MarkerKey::scoring)},
};

Column markerFieldColumn(const QString &identifier, const QString &title)
{
    return {.identifier = identifier, .title = title, .edits = Edits::Rows, .hasToolTip = true};
}

bool isMarkerField(const QString &identifier)
{
    return identifier.startsWith(MarkerKey::customPrefix);
}

} // namespace vantrell

#include "media/MediaColumns.h"

#include "media/MediaFile.h"
#include "media/MediaKeys.h"

namespace vantrell
{

namespace
{

using namespace Qt::StringLiterals;

QString sizeText(const RowRecord &file)
{
    if (!file.contains(MediaKey::filesize))
        return QString();
    return MediaFile::formatFileSize(double(std::uint64_t(file.get(MediaKey::filesize))));
}

QString missingText(const RowRecord &file)
{
    return file.get(MediaKey::missing) ? u"missing"_s : QString();
}

} // namespace

const Columns mediaColumns{
    {.identifier = u"filename"_s, .title = u"Name"_s, .width = 44, .elidesMiddle = true, .hasToolTip = true},
    {.identifier = u"filetype"_s, .title = u"Kind"_s, .width = 15},
    {.identifier = u"filesize"_s,
     .title = u"Size"_s,
     .width = 13,
     .alignment = Qt::AlignRight,
     .text = sizeText},
    {.identifier = u"modDate"_s, .title = u"Date Modified"_s, .width = 24},
    {.identifier = u"usageCount"_s, .title = u"Usage"_s, .width = 9, .alignment = Qt::AlignRight},
    {.identifier = u"missing"_s,
     .title = u"Missing"_s,
     .kind = Column::Kind::CheckBox,
     .width = 11,
     .text = missingText},
    {.identifier = u"directory"_s,
     .title = u"Folder"_s,
     .width = 40,
     .elidesMiddle = true,
     .hasToolTip = true},
};

} // namespace vantrell

#include "media/MediaUsage.h"

#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

namespace vantrell
{

MediaUsage::MediaUsage(XmlNode document, std::int64_t xmlType, const XmlNodeList &sequences,
                       const std::function<bool()> &isCancelled)
{
    static const XmlQuery singleVideo(
        QStringLiteral("./xmeml[1]/sequence[1]/media[1]/video[1]/track/clipitem/file[1]"));
    static const XmlQuery singleAudio(
        QStringLiteral("/xmeml[1]/sequence[1]/media[1]/audio[1]/track/clipitem/file[1]"));
    static const XmlQuery video(QStringLiteral("./media[1]/video[1]/track/clipitem/file[1]"));
    static const XmlQuery rootAudio(QStringLiteral("/media[1]/audio[1]/track/clipitem/file[1]"));
    const auto count = [](const XmlQuery &query, XmlNode context, Counts &counts) {
        for (const XmlNode file : query.evaluate(context).nodes) {
            const QString id = file.attribute("id");
            if (!id.isNull())
                ++counts[id];
        }
    };
    if (xmlType == 1) {
        count(singleVideo, document, m_video);
        count(singleAudio, document, m_audio);
        return;
    }
    for (const XmlNode sequence : sequences) {
        if (isCancelled())
            return;
        count(video, sequence, m_video);
    }
    count(rootAudio, document, m_audio);
    for (std::int64_t &uses : m_audio)
        uses *= std::int64_t(sequences.size());
}

std::int64_t MediaUsage::usageOf(const QString &clipID) const
{
    if (clipID.contains(QLatin1Char('"')))
        return 0;
    const QString id = QVXMLParser::evaluatedText(clipID);
    const std::int64_t videoCount = m_video.value(id);
    return videoCount != 0 ? videoCount : m_audio.value(id);
}

} // namespace vantrell

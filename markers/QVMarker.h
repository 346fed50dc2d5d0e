#pragma once

#include "rows/RowRecord.h"

#include <QMap>
#include <QString>

#include <cstdint>
#include <optional>

namespace vantrell
{

/// A marker's row record with its values in typed members: a copy that does not follow the record. Any
/// thread. Texts are null where the record has none.
struct QVMarker {
    QVMarker() = default;
    explicit QVMarker(const RowRecord &record);

    QString name;
    QString comment;
    std::optional<std::int64_t> inPos;  ///< frames
    std::optional<std::int64_t> outPos; ///< frames; -1 for no duration
    XmlNode markerElement;
    XmlNode sequence;
    QString sequenceUUID;
    QString sequenceName;
    XmlNode clip;
    bool chapter = false;
    bool scoring = false;
    bool compression = false;
    std::int64_t color = 0;              ///< colour index
    QMap<QString, QString> customFields; ///< by field identifier
    bool ntsc = false;
    bool dropFrame = false;
    std::int64_t timebase = 0;
    std::int64_t startFrame = 0;
    std::int64_t sequenceIndex = 0; ///< in the sequence menu
};

} // namespace vantrell

#pragma once

#include "document/RowRecord.h"

#include <QStringList>

namespace vantrell
{

/// Each row as "key=value|key=value", in the row's own order; texts and numbers only.
inline QStringList textsOf(const RowList &rows)
{
    QStringList texts;
    for (const RowRecordPtr &row : rows) {
        QStringList values;
        for (std::size_t i = 0; i < row->size(); ++i) {
            const RecordValue &value = row->valueAt(i);
            const double *number = std::get_if<double>(&value);
            const QString text = number ? QString::number(*number, 'g', 17) : row->text(row->keyAt(i));
            values.append(row->keyAt(i).text() + QLatin1Char('=') + text);
        }
        texts.append(values.join(QLatin1Char('|')));
    }
    return texts;
}

} // namespace vantrell

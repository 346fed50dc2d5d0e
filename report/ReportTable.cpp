#include "report/ReportTable.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "rows/RecordText.h"
#include "support/text/TextNumbers.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace vantrell
{

namespace
{

const QString parent = QStringLiteral("parent"); // the column of a marker's owner, of any kind
const RecordKey parentType(u"parentType");

std::size_t colorOf(const RowRecord &marker)
{
    const std::int64_t color = marker.get(MarkerKey::color);
    const bool isKnown = color > 0 && color < std::int64_t(MarkerColors::count);
    return isKnown ? std::size_t(color) : 0;
}

} // namespace

ReportTable::ReportTable(MyDocument &document, std::optional<Tab> table, const PrintColumns &columns,
                         Options options)
    : m_table(table)
    , m_options(std::move(options))
    , m_images(m_options.imageFolder)
    , m_rows(table ? document.rowsOnShow(*table) : document.tableArray())
{
    for (const PrintColumn &column : columns) {
        if (column.selected != 1 || column.title.isEmpty())
            continue;
        m_columnTitles.append(column.title);
        m_columns.push_back(column.tableColumn);
    }
    if (!table)
        return;
    m_selection = document.interface().selectedRows(*table);
    m_hasSelection = !m_selection.empty();
    std::sort(m_selection.begin(), m_selection.end());
    m_selection.erase(std::lower_bound(m_selection.begin(), m_selection.end(), m_rows.size()),
                      m_selection.end());
}

QString ReportTable::heading() const
{
    static const QStringList names{QStringLiteral("Media"), QStringLiteral("Effects"),
                                   QStringLiteral("Markers")};
    return m_table ? names.at(int(*m_table)) : QString();
}

void ReportTable::forEachRow(const std::function<void(const RowRecord &)> &use) const
{
    if (m_hasSelection) {
        for (const std::size_t row : m_selection)
            use(*m_rows[row]);
    } else {
        for (const RowRecordPtr &row : m_rows)
            use(*row);
    }
}

ReportCell ReportTable::valueCell(const RowRecord &row, const Column &column)
{
    ReportCell cell;
    if (column.reportText) {
        cell.text = column.reportText(row);
        return cell;
    }
    const RecordValue *value = row.find(column.key);
    if (value && column.nameKey && std::holds_alternative<XmlNode>(*value))
        value = row.find(*column.nameKey);
    if (column.kind == Column::Kind::CheckBox) {
        const bool isChecked = value && integerValue(plainText(*value)) == 1;
        cell.text = isChecked ? QStringLiteral("Yes") : QStringLiteral("No");
    } else {
        cell.isMissing = !value;
        cell.text = value ? plainText(*value) : column.missingText;
    }
    return cell;
}

ReportCell ReportTable::cell(const RowRecord &row, std::size_t index) const
{
    const Column &column = m_columns[index];
    ReportCell cell = valueCell(row, column);
    if (m_table != Tab::Markers)
        return cell;
    if (column.key == MarkerKey::name) {
        const std::size_t color = colorOf(row);
        cell.image = imageIfThere(color);
        cell.label = m_options.colorLabels[color];
    } else if (column.identifier == parent) {
        const bool isClip = row.text(parentType) == QStringLiteral("clip");
        cell.image = imageIfThere(isClip ? ReportImages::clip : ReportImages::sequence);
    }
    return cell;
}

ReportImages::ReportImages(const QString &folder)
{
    if (folder.isEmpty())
        return;
    for (std::size_t i = 0; i < count; ++i) {
        const QString path = QStringLiteral("%1/%2.png").arg(folder, name(i));
        if (QFileInfo::exists(path))
            m_paths[i] = path;
    }
}

QString ReportImages::standardFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/vantrell/report-images"));
}

QString ReportImages::name(std::size_t image)
{
    if (image < MarkerColors::count)
        return MarkerColors::table()[image].icon();
    return image == clip ? QStringLiteral("clip") : QStringLiteral("sequence");
}

} // namespace vantrell

#include "report/ReportHTML.h"

#include "report/ReportTable.h"

#include <QTextStream>

namespace vantrell::ReportHTML
{

namespace
{

constexpr QStringView documentStart =
    u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"http://www.w3.org/TR/html4/strict.dtd\">"
    "<html><head><style>body {margin: 0 0 0 0; padding: 0; font: 14px 'Lucida Grande', Geneva, Arial, "
    "Verdana, sans-serif; color: #000;} table {width:100%;} th {text-align:left;} td {padding:7px;}"
    "</style></head><body>";

void append(QString &text, QStringView before, QStringView content, QStringView after)
{
    text.append(before).append(content).append(after);
}

void appendCell(QString &text, const ReportTable &table, const ReportCell &cell)
{
    text.append(u"<td>");
    if (cell.image)
        append(text, u"<img src=\"file://", table.images().path(*cell.image), u"\" /> ");
    text.append(cell.text);
    if (!cell.label.isEmpty())
        append(text, u" (", cell.label, u")");
    text.append(u"</td>");
}

} // namespace

void write(const ReportTable &table, bool wholeDocument, QTextStream &out)
{
    QString text;
    if (wholeDocument)
        text.append(documentStart);
    append(text, u"<h1>", table.title(), u"</h1>");
    if (const QString heading = table.heading(); !heading.isEmpty())
        append(text, u"<h2>", heading, u"</h2>");
    text.append(u"<table><thead>");
    for (const QString &title : table.columnTitles())
        append(text, u"<th>", title, u"</th>");
    text.append(u"</thead><tbody>");
    out << text;
    const auto columns = std::size_t(table.columnTitles().size());
    table.forEachRow([&](const RowRecord &row) {
        text.resize(0); // keeps its memory
        text.append(u"<tr>");
        for (std::size_t i = 0; i < columns; ++i)
            appendCell(text, table, table.cell(row, i));
        text.append(u"</tr>");
        out << text;
    });
    out << QStringView(u"</tbody></table>");
    if (wholeDocument)
        out << QStringView(u"</body></html>");
}

QString bodyScript(const QString &body)
{
    QString script = QStringLiteral("document.body.innerHTML = '");
    script.reserve(body.size() + 64);
    for (const QChar c : body) {
        if (c == u'\'')
            script.append(u"\\'");
        else if (c != u'\n' && c != u'\r' && c != u'\t')
            script.append(c);
    }
    return script.append(u"';");
}

} // namespace vantrell::ReportHTML

#include "report/ReportWriter.h"

#include "report/ReportTable.h"
#include "support/files/FileUtilities.h"

#include <QTextStream>

#include <algorithm>

namespace vantrell::ReportWriter
{

namespace
{

constexpr QStringView recordEnd = u"\r\n";

/// The text followed by the label in parentheses.
QString labelled(QString text, const QString &label)
{
    if (label.isEmpty())
        return text;
    if (!text.isEmpty())
        text += u' ';
    return text.append(u'(').append(label).append(u')');
}

void appendField(QString &line, const QString &field)
{
    const auto needsQuotes = [](QChar c) { return c == u',' || c == u'"' || c == u'\r' || c == u'\n'; };
    if (std::none_of(field.cbegin(), field.cend(), needsQuotes)) {
        line.append(field);
        return;
    }
    line.append(u'"').append(QString(field).replace(u'"', QStringLiteral("\"\""))).append(u'"');
}

QString pageStart(const ReportTable &table)
{
    const QString title = table.title().toHtmlEscaped();
    QString text =
        QStringLiteral(
            "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title><style>\n"
            "body {margin: 0; font: 14px sans-serif; color: #000; background: #fff;}\n"
            "table {width: 100%; border-collapse: collapse;}\n"
            "th {text-align: left;} th, td {padding: 7px; vertical-align: top; white-space: pre-line;}\n"
            "tr {break-inside: avoid;}\n")
            .arg(title);
    for (std::size_t i = 0; i < ReportImages::count; ++i) {
        const QString &path = table.images().path(i);
        const Result<QByteArray> picture =
            path.isEmpty() ? Result<QByteArray>(Failure()) : FileUtilities::readFile(path);
        if (picture) {
            text += QStringLiteral(".%1::before {content: url(data:image/png;base64,%2);}\n")
                        .arg(ReportImages::name(i), QString::fromLatin1(picture.value().toBase64()));
        }
    }
    text += QStringLiteral("</style></head>\n<body><h1>") + title + QStringLiteral("</h1>");
    if (const QString heading = table.heading(); !heading.isEmpty())
        text += QStringLiteral("<h2>") + heading + QStringLiteral("</h2>");
    return text;
}

void appendPageCell(QString &text, const ReportCell &cell)
{
    text.append(u"<td>");
    if (cell.image)
        text.append(u"<span class=\"").append(ReportImages::name(*cell.image)).append(u"\"></span> ");
    text.append(labelled(cell.text, cell.label).toHtmlEscaped()).append(u"</td>");
}

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

void writeHTML(const ReportTable &table, bool wholeDocument, QTextStream &out)
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

void writeCSV(const ReportTable &table, QTextStream &out)
{
    const auto columns = std::size_t(table.columnTitles().size());
    QString line(QChar::ByteOrderMark);
    for (std::size_t i = 0; i < columns; ++i) {
        if (i > 0)
            line.append(u',');
        appendField(line, table.columnTitles().at(qsizetype(i)));
    }
    out << line.append(recordEnd);
    table.forEachRow([&](const RowRecord &row) {
        line.resize(0); // keeps its memory
        for (std::size_t i = 0; i < columns; ++i) {
            if (i > 0)
                line.append(u',');
            const ReportCell cell = table.cell(row, i);
            appendField(line, labelled(cell.isMissing ? QString() : cell.text, cell.label));
        }
        out << line.append(recordEnd);
    });
}

void writePage(const ReportTable &table, QTextStream &out)
{
    QString text = pageStart(table);
    text.append(u"<table>\n<thead><tr>");
    for (const QString &title : table.columnTitles())
        text.append(u"<th>").append(title.toHtmlEscaped()).append(u"</th>");
    out << text.append(u"</tr></thead>\n<tbody>\n");
    const auto columns = std::size_t(table.columnTitles().size());
    table.forEachRow([&](const RowRecord &row) {
        text.resize(0); // keeps its memory
        text.append(u"<tr>");
        for (std::size_t i = 0; i < columns; ++i)
            appendPageCell(text, table.cell(row, i));
        out << text.append(u"</tr>\n");
    });
    out << QStringView(u"</tbody></table></body></html>\n");
}

} // namespace vantrell::ReportWriter

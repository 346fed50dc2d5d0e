#include "report/web/ReportStyle.h"

namespace vantrell::ReportStyle
{

QString rules()
{
    // A timecode stays in one line, any other word is broken where it would make the table wider than the
    // page. From seven columns on all cells take a smaller font.
    return QStringLiteral("h1 {font-size: 22px; margin: 0 0 2px 7px;}"
                          "h2 {font-size: 15px; font-weight: normal; color: #444; margin: 0 0 14px 7px;}"
                          "h1, h2 {break-after: avoid; overflow-wrap: anywhere;}"
                          "table {border-collapse: collapse;}"
                          "thead {display: table-header-group; break-inside: avoid;}"
                          "tr {break-inside: avoid;}"
                          "th {padding: 7px; vertical-align: bottom; border-bottom: 1.5px solid #000;}"
                          "td {vertical-align: top; border-bottom: 0.5px solid #bbb; overflow-wrap: "
                          "anywhere; min-width: 6.3em;}"
                          "td:first-child {min-width: 9em;}"
                          "td img {height: 1.15em; vertical-align: -0.2em;}"
                          "th:first-child:nth-last-child(n+7), th:first-child:nth-last-child(n+7) ~ th,"
                          "td:first-child:nth-last-child(n+7), td:first-child:nth-last-child(n+7) ~ td"
                          "{font-size: 10px; padding: 4px;}");
}

} // namespace vantrell::ReportStyle

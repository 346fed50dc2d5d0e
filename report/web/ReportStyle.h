#pragma once

#include <QString>

/// How a report looks beyond what its own text says of it.
namespace vantrell::ReportStyle
{

/// The rules for paper and screen: the head of the table on every page, rows that stay whole, texts that stay
/// within the width.
QString rules();

} // namespace vantrell::ReportStyle

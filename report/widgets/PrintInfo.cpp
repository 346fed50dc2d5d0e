#include "report/widgets/PrintInfo.h"

#include "report/PaperSize.h"

#include <algorithm>

namespace vantrell
{

namespace
{

const QString paperKey = QStringLiteral("paper");
const QString landscapeKey = QStringLiteral("landscape");
const QString marginKey = QStringLiteral("margin");
const QString printerKey = QStringLiteral("printer");
const QString fileKey = QStringLiteral("file");
const QString copiesKey = QStringLiteral("copies");
const QString headerAndFooterKey = QStringLiteral("headerAndFooter");

QPageSize sizeOf(const QString &paper)
{
    for (int id = 0; id <= QPageSize::LastPageSize; ++id) {
        if (paper == QPageSize::key(QPageSize::PageSizeId(id)))
            return QPageSize(QPageSize::PageSizeId(id));
    }
    return QPageSize(QPageSize::A4);
}

} // namespace

PrintInfo::PrintInfo()
    : layout(sizeOf(PaperSize::ofCountry()), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15),
             QPageLayout::Millimeter)
{
}

PrintInfo::PrintInfo(const PropertyListDictionary &settings)
    : PrintInfo()
{
    setPaper(settings.value(paperKey).toString());
    if (settings.value(landscapeKey).toBoolean())
        layout.setOrientation(QPageLayout::Landscape);
    if (settings.value(marginKey).isNumber())
        setMargin(settings.value(marginKey).toReal());
    if (settings.value(printerKey).isString())
        printer = settings.value(printerKey).toString();
    if (settings.value(fileKey).isString())
        file = settings.value(fileKey).toString();
    if (settings.contains(copiesKey))
        copies = int(std::clamp<qint64>(settings.value(copiesKey).toInteger(), 1, mostCopies));
    if (settings.contains(headerAndFooterKey))
        headerAndFooter = settings.value(headerAndFooterKey).toBoolean();
}

PropertyListDictionary PrintInfo::settings() const
{
    PropertyListDictionary settings{{paperKey, layout.pageSize().key()},
                                    {landscapeKey, layout.orientation() == QPageLayout::Landscape},
                                    {marginKey, margin()},
                                    {copiesKey, copies},
                                    {headerAndFooterKey, headerAndFooter}};
    if (!printer.isNull())
        settings.insert(printerKey, printer);
    return settings;
}

PrintHelper::Pages PrintInfo::pages() const
{
    return {paper(), layout.orientation() == QPageLayout::Landscape, margin(), headerAndFooter};
}

QStringList PrintInfo::papers()
{
    return {QStringLiteral("A4"),     QStringLiteral("A3"),    QStringLiteral("A5"),
            QStringLiteral("Letter"), QStringLiteral("Legal"), QStringLiteral("Tabloid")};
}

void PrintInfo::setPaper(const QString &paper)
{
    if (papers().contains(paper))
        layout.setPageSize(sizeOf(paper));
}

void PrintInfo::setMargin(double millimetres)
{
    const double margin = std::clamp(millimetres, narrowestMargin, widestMargin);
    layout.setUnits(QPageLayout::Millimeter);
    layout.setMargins(QMarginsF(margin, margin, margin, margin));
}

double PrintInfo::margin() const
{
    return layout.margins(QPageLayout::Millimeter).left();
}

} // namespace vantrell

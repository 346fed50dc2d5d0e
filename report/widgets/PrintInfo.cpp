#include "report/widgets/PrintInfo.h"

#include "report/PaperSize.h"
#include "support/files/PropertyList.h"

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

PrintInfo::PrintInfo(const QVariantMap &settings)
    : PrintInfo()
{
    setPaper(settings.value(paperKey).toString());
    if (PropertyList::boolean(settings.value(landscapeKey)))
        layout.setOrientation(QPageLayout::Landscape);
    if (PropertyList::isNumber(settings.value(marginKey)))
        setMargin(settings.value(marginKey).toDouble());
    if (settings.value(printerKey).typeId() == QMetaType::QString)
        printer = settings.value(printerKey).toString();
    if (settings.value(fileKey).typeId() == QMetaType::QString)
        file = settings.value(fileKey).toString();
    if (settings.contains(copiesKey))
        copies = int(std::clamp<qint64>(PropertyList::integer(settings.value(copiesKey)), 1, mostCopies));
    if (settings.contains(headerAndFooterKey))
        headerAndFooter = PropertyList::boolean(settings.value(headerAndFooterKey));
}

QVariantMap PrintInfo::settings() const
{
    QVariantMap settings{{paperKey, layout.pageSize().key()},
                         {landscapeKey, layout.orientation() == QPageLayout::Landscape},
                         {marginKey, margin()},
                         {copiesKey, copies},
                         {headerAndFooterKey, headerAndFooter}};
    if (!printer.isNull())
        settings.insert(printerKey, printer);
    return settings;
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

} // namespace vantrell

#include "app/WebPages.h"

#include "support/alerts/QVAlert.h"
#include "support/settings/UserDefaults.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

namespace vantrell
{

namespace
{

const QString familyShortName = QStringLiteral("halvex");
const QString programShortName = QStringLiteral("vantrell");

QString keyOf(WebPage page)
{
    switch (page) {
    case WebPage::HalvexHome:
        return QStringLiteral("halvexHomeAddress");
    case WebPage::QVHome:
        return QStringLiteral("homeAddress");
    case WebPage::Support:
        return QStringLiteral("supportAddress");
    case WebPage::ReportBug:
        return QStringLiteral("reportBugAddress");
    case WebPage::SuggestFeature:
        return QStringLiteral("suggestFeatureAddress");
    }
    return QString();
}

} // namespace

QVariantMap defaultWebAddresses()
{
    return {
        {keyOf(WebPage::HalvexHome), QStringLiteral("https://www.orvandel.example/halvex")},
        {keyOf(WebPage::QVHome), QStringLiteral("https://www.orvandel.example/")},
        {keyOf(WebPage::Support), QStringLiteral("https://www.orvandel.example/support/%@")},
        {keyOf(WebPage::ReportBug), QStringLiteral("https://www.orvandel.example/bug?app=%@&subapp=%@")},
        {keyOf(WebPage::SuggestFeature),
         QStringLiteral("https://www.orvandel.example/feature?app=%@&subapp=%@")},
    };
}

void openWebPage(WebPage page, const UserDefaults &defaults)
{
    // Other percent signs belong to the address.
    QString address = defaults.string(keyOf(page));
    for (const QString &name : {familyShortName, programShortName}) {
        const qsizetype place = address.indexOf(QStringLiteral("%@"));
        if (place >= 0)
            address.replace(place, 2, name);
    }
    if (!QDesktopServices::openUrl(QUrl(address)))
        QVAlert::alertSheetWithMessageText(
            QCoreApplication::translate("WebPages", "The page cannot be shown"),
            QCoreApplication::translate("WebPages", "There is no browser to show it with: %1").arg(address),
            nullptr);
}

} // namespace vantrell

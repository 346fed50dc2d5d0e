#include "app/WebPages.h"

#include "support/alerts/QVAlert.h"
#include "support/settings/UserDefaults.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

#include <array>

namespace vantrell
{

namespace
{

struct Page {
    QString key; ///< of the user defaults
    QString address;
};

/// By WebPage.
const std::array<Page, 5> pages{
    {{QStringLiteral("halvexHomeAddress"), QStringLiteral("https://www.orvandel.example/halvex")},
     {QStringLiteral("homeAddress"), QStringLiteral("https://www.orvandel.example/")},
     {QStringLiteral("supportAddress"), QStringLiteral("https://www.orvandel.example/support/%@")},
     {QStringLiteral("reportBugAddress"),
      QStringLiteral("https://www.orvandel.example/bug?app=%@&subapp=%@")},
     {QStringLiteral("suggestFeatureAddress"),
      QStringLiteral("https://www.orvandel.example/feature?app=%@&subapp=%@")}}};

} // namespace

QString webAddressKey(WebPage page)
{
    return pages.at(std::size_t(page)).key;
}

QVariantMap defaultWebAddresses()
{
    QVariantMap addresses;
    for (const Page &page : pages)
        addresses.insert(page.key, page.address);
    return addresses;
}

void openWebPage(WebPage page, const UserDefaults &defaults)
{
    // Not formatText(): other percent signs are part of the address.
    QString address = defaults.string(webAddressKey(page));
    for (const QString &name : {QStringLiteral("halvex"), QStringLiteral("vantrell")}) {
        const qsizetype index = address.indexOf(QStringLiteral("%@"));
        if (index >= 0)
            address.replace(index, 2, name);
    }
    const QUrl url(address.trimmed());
    if (!url.isValid() || url.scheme().isEmpty())
        QVAlert::alertSheetWithMessageText(
            QCoreApplication::translate("WebPages", "The page has no valid address"),
            QCoreApplication::translate("WebPages",
                                        "“%1” is no web address. Edit ▸ Preferences… has the address of "
                                        "each help page.")
                .arg(address),
            nullptr);
    else if (!QDesktopServices::openUrl(url))
        QVAlert::alertSheetWithMessageText(
            QCoreApplication::translate("WebPages", "The page cannot be shown"),
            QCoreApplication::translate("WebPages", "There is no browser to show it with: %1").arg(address),
            nullptr);
}

} // namespace vantrell

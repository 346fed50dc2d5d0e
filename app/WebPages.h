#pragma once

#include <QString>
#include <QVariantMap>

namespace vantrell
{

class UserDefaults;

/// The web pages of the Help menu.
enum class WebPage { HalvexHome, QVHome, Support, ReportBug, SuggestFeature };

/// The user default with the page's address.
QString webAddressKey(WebPage page);

/// The initial user defaults for their addresses, which a site may replace by its own. In an address, the
/// first "%@" stands for the short name of the product family and the second for that of the program.
QVariantMap defaultWebAddresses();

/// Opens the page in the browser.
void openWebPage(WebPage page, const UserDefaults &defaults);

} // namespace vantrell

#pragma once

#include <QString>
#include <QVariantMap>

namespace vantrell
{

class UserDefaults;

/// The web pages of the Help menu.
enum class WebPage { HalvexHome, QVHome, Support, ReportBug, SuggestFeature };

/// Their addresses, for the user defaults to begin with: a site sets the keys to addresses of its own. In
/// an address the first "%@" stands for the family's short name and the second for that of the program.
QVariantMap defaultWebAddresses();

/// Opens the page in the browser.
void openWebPage(WebPage page, const UserDefaults &defaults);

} // namespace vantrell

#pragma once

#include "document/Menu.h"

#include <QStringList>

/// The titles of the items of a sequence or clip menu as a user tells them apart: those that several items
/// share are followed by their timecodes, of clips also by their track where that is not enough, and at last
/// by a number. Main thread.
namespace vantrell::MenuTitles
{

/// By the timecodes of start and end.
QStringList ofSequences(const Menu &menu);
/// By the place on the sequence whose clips they are.
QStringList ofClips(const Menu &menu, XmlNode sequence);

} // namespace vantrell::MenuTitles

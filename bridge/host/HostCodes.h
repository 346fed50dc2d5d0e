#pragma once

#include "bridge/EventRecord.h"

/// The codes of the events that every application handles.
namespace vantrell::HostCode
{

inline constexpr FourCharCode OpenDocuments{"odoc"}; ///< of class `aevt`: files to open
inline constexpr FourCharCode DirectObject{"----"};  ///< its list of file references
inline constexpr FourCharCode ErrorText{"errs"};     ///< of a reply: what went wrong, as `utf8`

} // namespace vantrell::HostCode

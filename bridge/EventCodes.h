#pragma once

#include "bridge/EventRecord.h"

/// The codes of the events that Final Cut Pro handles.
namespace vantrell::EventCode
{

// The event class, and the signature of the application.
inline constexpr FourCharCode FinalCutPro{"KeyG"};

// Events.
inline constexpr FourCharCode ListOpenProjects{"fcLP"};
inline constexpr FourCharCode ImportXml{"iXML"};
inline constexpr FourCharCode ExportProjectXml{"eXML"};
inline constexpr FourCharCode ExportItemXml{"gXML"};
inline constexpr FourCharCode ExportContents{"eTCX"};
inline constexpr FourCharCode OpenItem{"fcOI"};
inline constexpr FourCharCode SaveProject{"sfcP"};
inline constexpr FourCharCode CloseProject{"cfcP"};

// Parameters.
inline constexpr FourCharCode OpenProjects{"fcOP"};
inline constexpr FourCharCode ProjectFile{"fcPf"}; ///< of each record among the open projects
inline constexpr FourCharCode Project{"fcpP"};
inline constexpr FourCharCode ProjectUrl{"fcpU"};
inline constexpr FourCharCode ItemIdentifier{"fcIU"};
inline constexpr FourCharCode XmlData{"xmlD"};
inline constexpr FourCharCode Overwrite{"fsOF"};
inline constexpr FourCharCode DiscardChanges{"fcCF"};

// Replies.
inline constexpr FourCharCode CoreClass{"aevt"};
inline constexpr FourCharCode Answer{"ansr"};
inline constexpr FourCharCode ErrorNumber{"errn"};

// Types of values.
inline constexpr FourCharCode Null{"null"};
inline constexpr FourCharCode Signature{"sign"};
inline constexpr FourCharCode FileReference{"fsrf"};
inline constexpr FourCharCode FileUrl{"furl"};
inline constexpr FourCharCode Utf8{"utf8"};
inline constexpr FourCharCode Bool{"bool"};
inline constexpr FourCharCode Integer{"long"};
inline constexpr FourCharCode List{"list"};
inline constexpr FourCharCode Record{"reco"};

} // namespace vantrell::EventCode

/// The error numbers of replies and failed steps.
namespace vantrell::EventError
{

inline constexpr std::int32_t FileNotFound = -43;
inline constexpr std::int32_t BadParameter = -50;
inline constexpr std::int32_t OutOfMemory = -108;
inline constexpr std::int32_t Cancelled = -128;
inline constexpr std::int32_t ProcessNotFound = -600;   ///< no application receives events there
inline constexpr std::int32_t ConnectionInvalid = -609; ///< the application ended before the reply
inline constexpr std::int32_t CorruptData = -1702;      ///< the bytes are not an event
inline constexpr std::int32_t EventNotHandled = -1708;  ///< unknown to the application
inline constexpr std::int32_t TimedOut = -1712;
inline constexpr std::int32_t NotPermitted = -10004; ///< the application belongs to another user

} // namespace vantrell::EventError

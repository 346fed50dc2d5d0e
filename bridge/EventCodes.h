#pragma once

#include "bridge/EventRecord.h"

/// The codes of the events that Final Cut Pro answers.
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

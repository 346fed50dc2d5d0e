#pragma once

#include <QString>

#include <compare>
#include <cstdint>

namespace vantrell
{

/// Four bytes that name a class, an event, a parameter or a type. A type of its own, so that no number or
/// text converts to it.
struct FourCharCode {
    std::uint32_t value = 0; ///< the first character is the highest byte

    constexpr FourCharCode() = default;
    constexpr explicit FourCharCode(std::uint32_t number)
        : value(number)
    {
    }
    /// Of a literal of four characters.
    consteval FourCharCode(const char (&text)[5])
    {
        for (int i = 0; i < 4; ++i)
            value = value << 8 | static_cast<unsigned char>(text[i]);
    }

    friend constexpr auto operator<=>(FourCharCode, FourCharCode) = default;

    /// The four characters, or the number in hexadecimal digits unless all four are printable ASCII.
    QString text() const;
};

} // namespace vantrell

/// The codes of the events that Final Cut Pro handles, and of one that every application does.
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

inline constexpr FourCharCode OpenDocuments{"odoc"}; ///< of class `aevt`: files to open

// Parameters.
inline constexpr FourCharCode DirectObject{"----"}; ///< of OpenDocuments: a list of file references
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
inline constexpr FourCharCode ErrorText{"errs"}; ///< what went wrong, as `utf8`

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

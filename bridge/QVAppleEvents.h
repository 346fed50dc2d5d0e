#pragma once

#include "bridge/EventCancel.h"
#include "xml/XmlDocument.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <cstdint>
#include <memory>
#include <optional>

namespace vantrell
{

/// Sequences of a project, and the tree that owns them.
struct ProjectSequences {
    std::unique_ptr<XmlDocument> document;
    XmlNodeList sequences; ///< valid as long as the document
};

/// Communicates with a running Final Cut Pro, and provides the version of the installed one and text
/// utilities. Stateless; any thread.
///
/// The operations that communicate block until it has answered or the time-out has passed, which is one
/// minute, or ten for an import; cancelling ends them at once. A failure is written to the system log and,
/// with its cause, to the log; the operation then returns nothing or false.
class QVAppleEvents
{
public:
    QVAppleEvents() = delete;

    /// The bundle identifier.
    static QString finalCutProIdentifier() { return QStringLiteral("com.apple.FinalCutPro"); }
    static bool isFCPRunning();

    /// The projects that are open, possibly none; nothing when Final Cut Pro is not running.
    static std::optional<QStringList> listOfOpenFCPProjects(const EventCancel &cancel = {});

    /// Has the xmeml text imported, into the project if its path is that of an existing file. Returns whether
    /// Final Cut Pro accepted it.
    static bool sendXMLToFCP(const QString &xml, const QString &projectPath, const EventCancel &cancel = {});
    /// The same for text that escapedXml() has escaped.
    static bool sendEscapedXMLToFCP(QByteArray escapedXml, const QString &projectPath,
                                    const EventCancel &cancel = {});

    /// The xmeml text of a project in UTF-8, without a zero byte at its end. With `launchFCP` the project is
    /// opened first if need be, and waited for; otherwise it must be open. With `closeProject` a project that
    /// was not open before is closed afterwards, saving its changes.
    /// A character beyond the basic plane may arrive as two references (xml/XmlReferences.h).
    static std::optional<QByteArray> getProjectXMLData(const QString &path, bool launchFCP,
                                                       bool closeProject = false,
                                                       const EventCancel &cancel = {});
    static std::optional<QString> getProjectXML(const QString &path, bool launchFCP = false,
                                                bool closeProject = false, const EventCancel &cancel = {});

    /// The same for one item of a project, by its identifier.
    static std::optional<QByteArray> getItemXMLData(const QString &item, const QString &project,
                                                    bool launchFCP, bool closeProject = false,
                                                    const EventCancel &cancel = {});
    static std::optional<QString> getItemXML(const QString &item, const QString &project,
                                             bool launchFCP = false, bool closeProject = false,
                                             const EventCancel &cancel = {});

    /// The XML listing of a project's items. With `launchFCP` the project is opened first if need be.
    static std::optional<QByteArray> getTOCData(const QString &path, bool launchFCP,
                                                const EventCancel &cancel = {});
    static std::optional<QString> getTOC(const QString &path, bool launchFCP = false,
                                         const EventCancel &cancel = {});

    /// The sequences with a name, taken from the project's XML before version 7, else from its table of
    /// contents; the project is opened if need be. Nothing without data or when it cannot be parsed.
    static std::optional<ProjectSequences> sequencesInProject(const QString &path,
                                                              const EventCancel &cancel = {});

    /// Opens an item of a project, by its identifier. With `launchFCP` the project is opened when Final
    /// Cut Pro is not running.
    static void openItem(const QString &item, const QString &project, bool launchFCP,
                         const EventCancel &cancel = {});

    /// Has the project saved over its file. Returns whether that succeeded.
    static bool saveProject(const QString &path, const EventCancel &cancel = {});

    /// Has the project closed, saving or discarding its changes.
    static void closeProject(const QString &path, bool saveChanges, const EventCancel &cancel = {});

    /// A new random UUID: 36 characters, upper case.
    static QString generateUUID();

    /// The version of the installed Final Cut Pro; null when its property list has none, "7.0" without a
    /// readable property list.
    static QString finalCutProVersionString();
    /// The integer value of the version's first character; 7 without a version.
    static std::int64_t finalCutProMajorVersion() { return majorVersionOf(finalCutProVersionString()); }
    /// The highest version of the interchange format that the installed Final Cut Pro reads.
    static std::int64_t maximumXMEMLVersion() { return maximumXMEMLVersionOf(finalCutProVersionString()); }

    // The same for a given version; null for none.
    static std::int64_t majorVersionOf(const QString &version);
    static std::int64_t maximumXMEMLVersionOf(const QString &version);

    /// The text with each UTF-16 unit from 160 on and each carriage return as a decimal reference. Markup
    /// stays as it is.
    static QString escapeCharactersInXMLString(const QString &text)
    {
        return QString::fromUtf8(escapedXml(text));
    }
    /// The same text as UTF-8.
    static QByteArray escapedXml(QStringView text);

    /// The bytes without one zero at their end.
    static QByteArray formatData(QByteArray data);
};

} // namespace vantrell

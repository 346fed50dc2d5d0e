#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/JsonText.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"
#include "support/files/ProgramArguments.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlLocationPaths.h"

#include <nlohmann/json.hpp>

#include <memory>

namespace vantrell::cli
{

namespace
{

struct InfoOptions {
    std::string file;
    bool json = false;
};

struct SequenceInfo {
    std::size_t index;
    QString name;
    std::optional<QString> uuid;
    QString element;
    MenuPtr clips;
    std::shared_ptr<const QStringList> clipIDs;
};

std::vector<SequenceInfo> collect(MyDocument &document)
{
    std::vector<SequenceInfo> sequences;
    XmlLocationPaths paths;
    const MenuPtr menu = document.sequenceMenu();
    for (std::size_t i = 1; i < menu->size(); ++i) {
        const MenuItem &item = (*menu)[i];
        sequences.push_back({i, item.title, QVXMLParser::uuidForNode(item.element),
                             paths.pathOf(item.element), document.clipMenuForSequence(item.element),
                             document.clipIDsForSequence(item.element)});
    }
    return sequences;
}

QByteArray infoAsJson(std::int64_t xmlType, const std::vector<SequenceInfo> &sequences)
{
    Json list = Json::array();
    for (const SequenceInfo &sequence : sequences) {
        Json clips = Json::array();
        for (std::size_t i = 1; i < sequence.clips->size(); ++i) {
            clips.push_back({{"index", i},
                             {"title", jsonText((*sequence.clips)[i].title)},
                             {"id", jsonText(sequence.clipIDs->at(qsizetype(i)))}});
        }
        list.push_back({{"index", sequence.index},
                        {"name", jsonText(sequence.name)},
                        {"uuid", sequence.uuid ? Json(jsonText(*sequence.uuid)) : Json()},
                        {"element", jsonText(sequence.element)},
                        {"clips", std::move(clips)}});
    }
    return toBytes(Json{{"xmlType", xmlType}, {"sequences", std::move(list)}});
}

QByteArray infoAsTable(const std::vector<SequenceInfo> &sequences)
{
    TextTable table({QStringLiteral("Sequence"), QStringLiteral("Clip"), QStringLiteral("Name"),
                     QStringLiteral("UUID or ID")});
    for (const SequenceInfo &sequence : sequences) {
        const QString number = QString::number(sequence.index);
        table.addRow({number, QString(), sequence.name, sequence.uuid.value_or(QString())});
        for (std::size_t i = 1; i < sequence.clips->size(); ++i) {
            table.addRow(
                {number, QString::number(i), (*sequence.clips)[i].title, sequence.clipIDs->at(qsizetype(i))});
        }
    }
    return table.toBytes();
}

int info(const InfoOptions &options)
{
    ProjectSession session(Workbench::Inventories::None);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    const std::vector<SequenceInfo> sequences = collect(session.document());
    const QByteArray output =
        options.json ? infoAsJson(session.document().xmlType(), sequences) : infoAsTable(sequences);
    return print(output) ? Done : Failed;
}

} // namespace

void addInfoCommand(CommandLine &program)
{
    auto options = std::make_shared<InfoOptions>();
    Subcommand command = program.add("info", "List the sequences of a project and their clips");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.flag("--json", options->json, "Print one JSON document");
    command.onRun([options] { return info(*options); });
}

} // namespace vantrell::cli

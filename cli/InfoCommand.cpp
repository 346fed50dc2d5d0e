#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"
#include "rows/json/JsonText.h"
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

QByteArray infoAsJson(MyDocument &document)
{
    Json list = Json::array();
    XmlLocationPaths paths;
    const MenuPtr menu = document.sequenceMenu();
    for (std::size_t i = 1; i < menu->size(); ++i) {
        const XmlNode sequence = (*menu)[i].element;
        const std::optional<QString> uuid = QVXMLParser::uuidForNode(sequence);
        const MenuPtr clipMenu = document.clipMenuForSequence(sequence);
        const auto ids = document.clipIDsForSequence(sequence);
        Json clips = Json::array();
        for (std::size_t j = 1; j < clipMenu->size(); ++j) {
            clips.push_back({{"index", j},
                             {"title", jsonText((*clipMenu)[j].title)},
                             {"id", jsonText(ids->at(qsizetype(j)))}});
        }
        list.push_back({{"index", i},
                        {"name", jsonText((*menu)[i].title)},
                        {"uuid", uuid ? Json(jsonText(*uuid)) : Json()},
                        {"element", jsonText(paths.pathOf(sequence))},
                        {"clips", std::move(clips)}});
    }
    return toBytes(Json{{"xmlType", document.xmlType()}, {"sequences", std::move(list)}});
}

QByteArray infoAsTable(MyDocument &document)
{
    TextTable table({QStringLiteral("Sequence"), QStringLiteral("Clip"), QStringLiteral("Name"),
                     QStringLiteral("UUID or ID")});
    const MenuPtr menu = document.sequenceMenu();
    for (std::size_t i = 1; i < menu->size(); ++i) {
        const XmlNode sequence = (*menu)[i].element;
        const QString uuid = QVXMLParser::uuidForNode(sequence).value_or(QString());
        const MenuPtr clipMenu = document.clipMenuForSequence(sequence);
        const auto ids = document.clipIDsForSequence(sequence);
        table.addRow({QString::number(i), QString(), (*menu)[i].title, uuid});
        for (std::size_t j = 1; j < clipMenu->size(); ++j) {
            table.addRow(
                {QString::number(i), QString::number(j), (*clipMenu)[j].title, ids->at(qsizetype(j))});
        }
    }
    return table.toBytes();
}

int info(const InfoOptions &options)
{
    ProjectSession session(Workbench::Inventories::None);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    return print(options.json ? infoAsJson(session.document()) : infoAsTable(session.document())) ? Done
                                                                                                  : Failed;
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

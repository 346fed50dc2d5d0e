#include "cli/CommandLine.h"

#include "cli/Console.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <deque>

namespace vantrell::cli
{

/// A subcommand of the library with what its handles need.
struct Subcommand::Node {
    CLI::App &app;
    std::deque<Node> &nodes; ///< all of the program's
    int &status;
};

struct CommandLine::Parser {
    CLI::App app;
    std::deque<Subcommand::Node> nodes;
    int status = Done;
};

void Subcommand::value(const char *name, std::string &target, const std::string &help, Need need)
{
    m_node->app.add_option(name, target, help)->required(need == Need::Required);
}

void Subcommand::value(const char *name, std::optional<std::string> &target, const std::string &help)
{
    m_node->app.add_option(name, target, help);
}

void Subcommand::values(const char *name, std::vector<std::string> &target, const std::string &help,
                        Need need)
{
    m_node->app.add_option(name, target, help)->required(need == Need::Required);
}

void Subcommand::choice(const char *name, std::string &target, const std::vector<std::string> &choices,
                        const std::string &help, Need need)
{
    m_node->app.add_option(name, target, help)
        ->required(need == Need::Required)
        ->check(CLI::IsMember(choices));
}

void Subcommand::flag(const char *name, bool &target, const std::string &help)
{
    m_node->app.add_flag(name, target, help);
}

bool Subcommand::isGiven(const std::string &name) const
{
    return m_node->app.count(name) > 0;
}

Subcommand Subcommand::add(const char *name, const std::string &description)
{
    m_node->app.require_subcommand(1);
    CLI::App *app = m_node->app.add_subcommand(name, description);
    return Subcommand(&m_node->nodes.emplace_back(Node{*app, m_node->nodes, m_node->status}));
}

void Subcommand::onRun(std::function<int()> run)
{
    m_node->app.callback([&status = m_node->status, run = std::move(run)] { status = run(); });
}

CommandLine::CommandLine(const char *description, const char *name, const char *version)
    : m_parser(new Parser{CLI::App(description, name), {}})
{
    m_parser->app.set_version_flag("--version", std::string(name) + ' ' + version);
    m_parser->app.require_subcommand(1);
}

CommandLine::~CommandLine() = default;

Subcommand CommandLine::add(const char *name, const std::string &description)
{
    CLI::App *app = m_parser->app.add_subcommand(name, description);
    return Subcommand(
        &m_parser->nodes.emplace_back(Subcommand::Node{*app, m_parser->nodes, m_parser->status}));
}

int CommandLine::run(const std::vector<std::string> &arguments)
{
    try {
        // The parser takes the arguments from the back.
        m_parser->app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError &error) {
        return m_parser->app.exit(error) == 0 ? Done : WrongUsage;
    } catch (const std::exception &error) {
        complain(QString::fromLocal8Bit(error.what()));
        return Failed;
    }
    return m_parser->status;
}

} // namespace vantrell::cli

#include "cli/CommandLine.h"

#include "cli/Console.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <sstream>

namespace vantrell::cli
{

namespace
{

/// Prefixed to a value that begins with a minus sign, or with the mark, so that the library takes it as text.
constexpr char mark = '\x01';

bool beginsWithMinus(const std::string &argument)
{
    return argument.size() > 1 && argument[0] == '-';
}

/// Such as "-12" and "-1..", which are not option names.
bool isNegativeNumber(const std::string &argument)
{
    return beginsWithMinus(argument) && std::string("0123456789.,:;").find(argument[1]) != std::string::npos;
}

std::string withoutMark(std::string value)
{
    if (!value.empty() && value.front() == mark)
        value.erase(0, 1);
    return value;
}

/// The subcommand of that name; the application itself when it has none.
const CLI::App *subcommandNamed(const CLI::App &app, const std::string &name)
{
    const auto found =
        app.get_subcommands([&name](const CLI::App *subcommand) { return subcommand->get_name() == name; });
    return found.empty() ? &app : found.front();
}

bool takesValue(const CLI::Option *option)
{
    return option && option->get_items_expected_max() > 0;
}

/// How many of the arguments behind that one belong to it.
int valuesOf(const CLI::Option *option, const std::string &argument)
{
    if (!takesValue(option) || argument.find('=') != std::string::npos)
        return 0;
    return option->get_items_expected_max() == 2 ? 2 : 1; // a list takes one at a time
}

/// Prefixes the mark to negative numbers, to the values of an option unless they are option names, and to all
/// that follows "--", which goes.
std::vector<std::string> markedValues(const CLI::App &program, const std::vector<std::string> &arguments)
{
    const CLI::App *app = &program;
    int values = 0; // that the option before still takes
    bool isRest = false;
    std::vector<std::string> marked;
    for (const std::string &argument : arguments) {
        if (!isRest && argument == "--") {
            isRest = true;
            continue;
        }
        const CLI::Option *option = beginsWithMinus(argument) && !isRest
                                        ? app->get_option_no_throw(argument.substr(0, argument.find('=')))
                                        : nullptr;
        // The library takes an empty value for none, and splits what is in brackets.
        const auto isSpecial = [](const std::string &text) {
            return text.empty() || text[0] == mark || text[0] == '[' || text[0] == '-';
        };
        // "-oVALUE"
        if (values == 0 && !isRest && !option && argument.size() > 2 && beginsWithMinus(argument) &&
            takesValue(app->get_option_no_throw(argument.substr(0, 2)))) {
            marked.push_back(argument.substr(0, 2));
            marked.push_back(mark + argument.substr(2));
            continue;
        }
        const std::size_t equals =
            option && argument.starts_with("--") ? argument.find('=') : std::string::npos;
        if (equals != std::string::npos && takesValue(option) && isSpecial(argument.substr(equals + 1))) {
            marked.push_back(argument.substr(0, equals));
            marked.push_back(mark + argument.substr(equals + 1));
            values = valuesOf(option, std::string()) - 1;
            continue;
        }
        const bool isText = isRest || argument.starts_with(mark) || argument.starts_with('[') ||
                            isNegativeNumber(argument) ||
                            (values > 0 && !option && beginsWithMinus(argument));
        if (!isText && values == 0)
            app = subcommandNamed(*app, argument);
        marked.push_back(isText ? mark + argument : argument);
        values = option ? valuesOf(option, argument) : std::max(values - 1, 0);
    }
    return marked;
}

/// Prints a message of the library with the arguments as typed.
bool printWithoutMarks(std::string text, std::FILE *stream)
{
    text.erase(std::remove(text.begin(), text.end(), mark), text.end());
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
    return std::fflush(stream) == 0 && isWritten;
}

} // namespace

/// A subcommand of the library with what its handles need.
struct Subcommand::Node {
    CLI::App &app;
    std::deque<Node> &nodes; ///< all nodes of the program
    int &status;
};

struct CommandLine::Parser {
    CLI::App app;
    std::deque<Subcommand::Node> nodes;
    int status = Done;
};

void Subcommand::value(const char *name, std::string &target, const std::string &help, Need need)
{
    m_node->app.add_option(name, target, help)->transform(withoutMark)->required(need == Need::Required);
}

void Subcommand::value(const char *name, std::optional<std::string> &target, const std::string &help)
{
    m_node->app.add_option(name, target, help)->transform(withoutMark);
}

void Subcommand::values(const char *name, std::vector<std::string> &target, const std::string &help,
                        Need need)
{
    CLI::Option *option =
        m_node->app.add_option(name, target, help)->transform(withoutMark)->required(need == Need::Required);
    // An option takes one value each time that it is given, so that arguments may follow it.
    if (name[0] == '-')
        option->allow_extra_args(false);
}

void Subcommand::pair(const char *name, std::vector<std::string> &target, const std::string &help)
{
    m_node->app.add_option(name, target, help)->transform(withoutMark)->expected(2);
}

void Subcommand::repeated(const char *name, std::vector<std::string> &target, const std::string &help)
{
    m_node->app.add_option(name, target, help)->transform(withoutMark)->allow_extra_args(false);
}

void Subcommand::choice(const char *name, std::string &target, const std::vector<std::string> &choices,
                        const std::string &help, Need need)
{
    m_node->app.add_option(name, target, help)
        ->transform(withoutMark)
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
        std::vector<std::string> marked = markedValues(m_parser->app, arguments);
        std::reverse(marked.begin(), marked.end());
        m_parser->app.parse(std::move(marked));
    } catch (const CLI::ParseError &error) {
        std::ostringstream out;
        std::ostringstream err;
        const int status = m_parser->app.exit(error, out, err);
        printWithoutMarks(err.str(), stderr);
        if (printWithoutMarks(out.str(), stdout))
            return status == 0 ? Done : WrongUsage;
        complain(QStringLiteral("standard output cannot be written."));
        return Failed;
    } catch (const std::exception &error) {
        complain(QString::fromLocal8Bit(error.what()));
        return Failed;
    }
    return m_parser->status;
}

} // namespace vantrell::cli

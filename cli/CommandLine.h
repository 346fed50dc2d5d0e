#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantrell::cli
{

/// Exit statuses of the program.
/// Differs: nothing failed, but what was compared is not the same.
enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2, Differs = 3 };

/// One subcommand's arguments, declared before parsing. A name that begins with a minus sign is an option's,
/// any other a positional argument's. The targets outlive the parsing; they keep their value when the
/// argument is not given.
class Subcommand
{
public:
    enum class Need { Optional, Required };

    /// An argument of one value, and one of several.
    void value(const char *name, std::string &target, const std::string &help, Need need = Need::Optional);
    void value(const char *name, std::optional<std::string> &target, const std::string &help);
    void values(const char *name, std::vector<std::string> &target, const std::string &help,
                Need need = Need::Optional);
    /// An option of exactly two values.
    void pair(const char *name, std::vector<std::string> &target, const std::string &help);
    /// An option that may be given several times, each time with one value.
    void repeated(const char *name, std::vector<std::string> &target, const std::string &help);
    /// An argument whose value is one of the choices.
    void choice(const char *name, std::string &target, const std::vector<std::string> &choices,
                const std::string &help, Need need = Need::Optional);
    void flag(const char *name, bool &target, const std::string &help);

    /// Whether the argument was given; after parsing.
    bool isGiven(const std::string &name) const;

    /// A subcommand of this one, which then takes exactly one of them.
    Subcommand add(const char *name, const std::string &description);

    /// What runs when the subcommand is chosen; its result is the exit status.
    void onRun(std::function<int()> run);

private:
    friend class CommandLine;
    struct Node;
    explicit Subcommand(Node *node)
        : m_node(node)
    {
    }

    Node *m_node; ///< owned by the command line
};

/// The program's subcommands and their arguments. The only code that knows the library that parses them,
/// whose header takes longer to compile than all of a command.
class CommandLine
{
public:
    CommandLine(const char *description, const char *name, const char *version);
    ~CommandLine();

    Subcommand add(const char *name, const std::string &description);

    /// Parses the arguments, without the program name, and runs the chosen subcommand. Prints help, the
    /// version and usage errors. Returns the exit status.
    int run(const std::vector<std::string> &arguments);

private:
    struct Parser;
    std::unique_ptr<Parser> m_parser;
};

} // namespace vantrell::cli

// Compares loading a project with the parse of the same file by xmllint, as whole processes: wall time,
// processor time and the most memory that was resident.

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <optional>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

extern char **environ;

namespace
{

struct Options {
    std::vector<std::string> files;
    std::string cli;
    std::string xmllint = "xmllint";
    int runs = 5;
    bool noInventories = false;
    bool growth = false;
};

struct Sample {
    double wallSeconds;
    double processorSeconds; // user and system
    double peakBytes;
};

struct Comparison {
    std::string file;
    double bytes;
    Sample floor;   // xmllint
    Sample program; // vantrell-cli
};

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

/// Runs a program to its end with standard output discarded. nullopt when it cannot be started or its exit
/// status is not 0; the reason is then on standard error.
std::optional<Sample> run(const std::vector<std::string> &command)
{
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t child = -1;
    const int error = posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        std::fprintf(stderr, "%s: %s\n", command[0].c_str(), std::strerror(error));
        return std::nullopt;
    }

    int status = 0;
    rusage usage{};
    while (wait4(child, &status, 0, &usage) < 0) {
        if (errno != EINTR) {
            std::perror("wait4");
            return std::nullopt;
        }
    }
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s ended with %s %d\n", command[0].c_str(),
                     WIFEXITED(status) ? "status" : "signal",
                     WIFEXITED(status) ? WEXITSTATUS(status) : WTERMSIG(status));
        return std::nullopt;
    }
#ifdef __APPLE__
    constexpr double bytesPerUnit = 1;
#else
    constexpr double bytesPerUnit = 1024;
#endif
    return Sample{wall.count(), seconds(usage.ru_utime) + seconds(usage.ru_stime),
                  double(usage.ru_maxrss) * bytesPerUnit};
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

Sample medians(const std::vector<Sample> &samples)
{
    const auto of = [&](double Sample::*member) {
        std::vector<double> values;
        for (const Sample &sample : samples)
            values.push_back(sample.*member);
        return median(std::move(values));
    };
    return {of(&Sample::wallSeconds), of(&Sample::processorSeconds), of(&Sample::peakBytes)};
}

/// Reads a file once, so that it is in the cache for all runs. Its size in bytes; nullopt when it cannot be
/// read.
std::optional<double> readThrough(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    std::vector<char> block(1 << 16);
    double bytes = 0;
    while (file.read(block.data(), std::streamsize(block.size())) || file.gcount() > 0)
        bytes += double(file.gcount());
    if (bytes > 0)
        return bytes;
    std::fprintf(stderr, "%s cannot be read or is empty.\n", path.c_str());
    return std::nullopt;
}

std::optional<Comparison> compare(const Options &options, const std::string &file)
{
    const std::optional<double> bytes = readThrough(file);
    if (!bytes)
        return std::nullopt;
    const std::vector<std::string> floorCommand{options.xmllint, "--noout", file};
    std::vector<std::string> programCommand{options.cli, "load", file};
    if (options.noInventories)
        programCommand.emplace_back("--no-inventories");

    std::vector<Sample> floor, program;
    for (int i = 0; i < options.runs; ++i) {
        const std::optional<Sample> floorSample = run(floorCommand);
        const std::optional<Sample> programSample = floorSample ? run(programCommand) : std::nullopt;
        if (!programSample)
            return std::nullopt;
        floor.push_back(*floorSample);
        program.push_back(*programSample);
    }
    return Comparison{file, *bytes, medians(floor), medians(program)};
}

void printComparison(const Comparison &comparison)
{
    const auto row = [](const char *name, const Sample &sample) {
        std::printf("  %-14s %10.3f %12.3f %10.1f\n", name, sample.wallSeconds, sample.processorSeconds,
                    sample.peakBytes / 1e6);
    };
    std::printf("%s (%.1f MB)\n", comparison.file.c_str(), comparison.bytes / 1e6);
    std::printf("  %-14s %10s %12s %10s\n", "", "wall s", "user+sys s", "peak MB");
    row("xmllint", comparison.floor);
    row("vantrell-cli", comparison.program);
    std::printf("  %-14s %10.2f %12.2f %10.2f\n\n", "ratio",
                comparison.program.wallSeconds / comparison.floor.wallSeconds,
                comparison.program.processorSeconds / comparison.floor.processorSeconds,
                comparison.program.peakBytes / comparison.floor.peakBytes);
}

/// The growth of the cost against the growth of the file.
void printGrowth(const Comparison &small, const Comparison &large)
{
    const double size = large.bytes / small.bytes;
    std::printf("growth: %.2f times the size\n", size);
    std::printf("  %-14s %10s %12s %10s\n", "", "wall", "user+sys", "peak");
    const auto row = [&](const char *name, const Sample &from, const Sample &to) {
        const std::array factors{to.wallSeconds / from.wallSeconds,
                                 to.processorSeconds / from.processorSeconds, to.peakBytes / from.peakBytes};
        std::printf("  %-14s %10.2f %12.2f %10.2f\n", name, factors[0], factors[1], factors[2]);
        std::printf("  %-14s %10.2f %12.2f %10.2f\n", "  over size", factors[0] / size, factors[1] / size,
                    factors[2] / size);
    };
    row("xmllint", small.floor, large.floor);
    row("vantrell-cli", small.program, large.program);
}

/// vantrell-cli in the folder of this program.
std::string cliBesideThisProgram(const char *calledAs)
{
    std::error_code error;
    std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        self = calledAs;
    return (self.parent_path() / "vantrell-cli").string();
}

int benchmark(const Options &options)
{
    std::vector<Comparison> comparisons;
    for (const std::string &file : options.files) {
        std::optional<Comparison> comparison = compare(options, file);
        if (!comparison)
            return 1;
        printComparison(*comparison);
        std::fflush(stdout);
        comparisons.push_back(std::move(*comparison));
    }
    if (options.growth)
        printGrowth(comparisons[0], comparisons[1]);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    try {
        CLI::App app("Compares vantrell-cli load with xmllint --noout on the same files, run by turns");
        Options options;
        options.cli = cliBesideThisProgram(argv[0]);
        std::vector<std::string> growth;
        CLI::Option *files = app.add_option("FILE", options.files, "Projects to load");
        app.add_option("--growth", growth, "A SMALL and a LARGE file: how time and memory grow with the size")
            ->expected(2)
            ->excludes(files);
        app.add_option("--cli", options.cli, "The vantrell-cli to measure")->capture_default_str();
        app.add_option("--xmllint", options.xmllint, "The xmllint to compare with")->capture_default_str();
        app.add_option("--runs", options.runs, "Runs of each program; medians are printed")
            ->check(CLI::Range(1, 1000))
            ->capture_default_str();
        app.add_flag("--no-inventories", options.noInventories, "Load without the three inventories");
        try {
            app.parse(argc, argv);
            if (options.files.empty() && growth.empty())
                throw CLI::RequiredError("FILE or --growth");
        } catch (const CLI::ParseError &error) {
            return app.exit(error) == 0 ? 0 : 2;
        }
        if (!growth.empty()) {
            options.files = growth;
            options.growth = true;
        }
        return benchmark(options);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

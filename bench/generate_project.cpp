// Writes a large editing project for measuring. It looks like those that editing systems write: one element
// a line, files defined in full in their master clips and referred to by id in the sequences, linked picture
// and sound, filters with their parameters.

#include "bench/ProjectGenerator.h"
#include "bench/XmlStream.h"

#include <CLI/CLI.hpp>

#include <QFile>

#include <cstdio>
#include <exception>
#include <string>

using namespace vantrell::bench;

namespace
{

/// Prints what was written. False when the share of white space is unlike that of real projects.
bool printReport(const ProjectShape &shape, const ProjectCounts &counts, const XmlStream &xml)
{
    const double share = 100 * double(xml.whiteSpaceBytes()) / double(xml.bytes());
    std::fprintf(stderr, "bytes           %llu\n", static_cast<unsigned long long>(xml.bytes()));
    std::fprintf(stderr, "indentation     %.1f %%\n", share);
    std::fprintf(stderr, "elements        %llu\n", static_cast<unsigned long long>(xml.elements()));
    std::fprintf(stderr, "sequences       %lld\n", static_cast<long long>(counts.sequences));
    std::fprintf(stderr, "files           %lld\n", static_cast<long long>(counts.files));
    std::fprintf(stderr, "clip items      %lld\n", static_cast<long long>(counts.clipItems));
    std::fprintf(stderr, "effects         %lld\n", static_cast<long long>(counts.effects));
    std::fprintf(stderr, "markers         %lld\n", static_cast<long long>(counts.markers));
    if (!shape.whiteSpace || (share >= 25 && share <= 35))
        return true;
    std::fprintf(stderr, "The indentation is not between 25 and 35 %%.\n");
    return false;
}

/// Writes the project to a file, "-" for standard output. The exit status.
int generate(const ProjectShape &shape, const std::string &output, bool report)
{
    QFile file(QString::fromStdString(output));
    const bool isOpen =
        output == "-" ? file.open(stdout, QIODevice::WriteOnly) : file.open(QIODevice::WriteOnly);
    XmlStream xml(&file, shape.whiteSpace);
    const ProjectCounts counts = isOpen ? writeProject(shape, xml) : ProjectCounts();
    if (!isOpen || !xml.finish() || !file.flush()) {
        std::fprintf(stderr, "%s: %s\n", output.c_str(), qPrintable(file.errorString()));
        return 1;
    }
    return report && !printReport(shape, counts, xml) ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    try {
        CLI::App app("Writes a large editing project for measuring");
        ProjectShape shape;
        bool noWhiteSpace = false;
        bool report = false;
        std::string output = "-";
        CLI::Option *size =
            app.add_option("--size", shape.megabytes,
                           "Target size in MB (1,000,000 bytes): sequences until it is reached")
                ->check(CLI::Range(0.01, 100000.0));
        app.add_option("--sequences", shape.sequences, "Sequences")
            ->check(CLI::Range(0, 1000000))
            ->excludes(size)
            ->capture_default_str();
        app.add_option("--clips", shape.clips, "Clip items in each sequence; about that with --size")
            ->check(CLI::Range(1, 10000000))
            ->capture_default_str();
        app.add_option("--sequence-markers", shape.sequenceMarkers, "Markers on each sequence")
            ->check(CLI::Range(0, 10000000))
            ->capture_default_str();
        app.add_option("--clip-markers", shape.clipMarkers, "Markers on each clip, on average")
            ->check(CLI::Range(0.0, 1000.0))
            ->capture_default_str();
        app.add_option("--files", shape.files, "Media files (default: one for a dozen clip items)")
            ->check(CLI::Range(1, 10000000));
        app.add_option("--filters", shape.filters, "Filters on each clip item, on average")
            ->check(CLI::Range(0.0, 1000.0))
            ->capture_default_str();
        app.add_option("--bins", shape.bins, "Bins of master clips")
            ->check(CLI::Range(1, 1000000))
            ->capture_default_str();
        app.add_flag("--no-whitespace", noWhiteSpace, "Nothing between the elements");
        app.add_option("--seed", shape.seed, "Another seed, another project of the same shape")
            ->capture_default_str();
        app.add_option("--drop-frame-share", shape.dropFrameShare, "Share of drop-frame sequences")
            ->check(CLI::Range(0.0, 1.0))
            ->capture_default_str();
        app.add_flag(
            "--report", report,
            "Print counts on standard error; status 1 unless indentation is 25 to 35 % of the bytes");
        app.add_option("-o,--output", output, "File to write; - is standard output")->capture_default_str();
        try {
            app.parse(argc, argv);
        } catch (const CLI::ParseError &error) {
            return app.exit(error) == 0 ? 0 : 2;
        }
        shape.whiteSpace = !noWhiteSpace;
        return generate(shape, output, report);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

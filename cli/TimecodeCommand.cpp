#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/OptionValues.h"
#include "support/files/ProgramArguments.h"
#include "timecode/QVTimecode.h"

#include <functional>
#include <memory>

namespace vantrell::cli
{

namespace
{

struct TimecodeOptions {
    std::string timebase = "30";
    std::string start;
    bool ntsc = false;
    bool dropFrame = false;
    std::vector<std::string> values;
};

/// The parsed options.
struct Parameters {
    qint64 timebase;
    quint64 startFrame;
    bool ntsc;
    bool dropFrame;
    QString startTimecode;
};

/// The output of one subcommand for its values; nullopt, after a message, when a value is wrong.
using Printer = std::function<std::optional<QStringList>(const Parameters &, const QStringList &)>;

std::optional<QStringList> formatFrames(const Parameters &p, const QStringList &values)
{
    QStringList lines;
    for (const QString &value : values) {
        const std::optional<quint64> frames = wholeNumber(value);
        if (!frames) {
            complain(QStringLiteral("\"%1\" is no number of frames.").arg(value));
            return std::nullopt;
        }
        lines.append(
            QVTimecode::timecodeFromFrameCount(*frames, p.timebase, p.ntsc, p.dropFrame, p.startFrame));
    }
    return lines;
}

std::optional<QStringList> parseTimecodes(const Parameters &p, const QStringList &values)
{
    QStringList lines;
    for (const QString &value : values) {
        lines.append(QString::number(
            QVTimecode::frameCountFromTimecode(value, p.timebase, p.ntsc, p.dropFrame, p.startFrame)));
    }
    return lines;
}

std::optional<QStringList> expandTexts(const Parameters &p, const QStringList &values)
{
    QStringList lines;
    for (const QString &value : values)
        lines.append(QVTimecode::timecodeFromUserString(value, p.dropFrame, p.startTimecode));
    return lines;
}

using Combination = QString (*)(const QString &, const QString &, qint64, bool, bool);

Printer combining(Combination combination)
{
    return [combination](const Parameters &p, const QStringList &values) -> std::optional<QStringList> {
        if (values.isEmpty() || values.size() % 2 != 0) {
            complain(QStringLiteral("two timecodes are needed."));
            return std::nullopt;
        }
        QStringList lines;
        for (qsizetype i = 0; i < values.size(); i += 2)
            lines.append(combination(values.at(i), values.at(i + 1), p.timebase, p.ntsc, p.dropFrame));
        return lines;
    };
}

int run(const TimecodeOptions &options, bool startIsTimecode, const Printer &printer)
{
    const QString timebaseText = fromArgument(options.timebase);
    const std::optional<quint64> timebase = wholeNumber(timebaseText);
    if (!timebase)
        return refuseUsage(QStringLiteral("--timebase: \"%1\" is no whole number.").arg(timebaseText));
    const QString start = fromArgument(options.start);
    const bool countsFromZero = startIsTimecode || start.isEmpty();
    const std::optional<quint64> startFrame = countsFromZero ? 0 : wholeNumber(start);
    if (!startFrame)
        return refuseUsage(QStringLiteral("--start: \"%1\" is no whole number.").arg(start));
    const Parameters parameters{qint64(*timebase), *startFrame, options.ntsc, options.dropFrame, start};
    QStringList values = fromArguments(options.values);
    if (values.isEmpty())
        values = readLines();
    const std::optional<QStringList> lines = printer(parameters, values);
    if (!lines)
        return WrongUsage;
    QByteArray output;
    for (const QString &line : *lines)
        output += line.toUtf8() + '\n';
    return print(output) ? Done : Failed;
}

struct Operation {
    const char *name;
    const char *description;
    const char *valueName;
    bool counts;           ///< takes --timebase and --ntsc
    const char *startHelp; ///< of --start; null for none
    bool startIsTimecode;
    Printer printer;
};

void addOperation(Subcommand &timecode, const Operation &operation)
{
    auto options = std::make_shared<TimecodeOptions>();
    Subcommand command = timecode.add(operation.name, operation.description);
    command.values(operation.valueName, options->values,
                   "Values; read from standard input when none is given");
    if (operation.counts) {
        command.value("--timebase", options->timebase, "Frames per second, 30 unless given");
        command.flag("--ntsc", options->ntsc, "The real rate is timebase x 1000/1001");
    }
    command.flag("--drop-frame", options->dropFrame, "Count in drop frame");
    if (operation.startHelp)
        command.value("--start", options->start, operation.startHelp);
    command.onRun(
        [options, operation] { return run(*options, operation.startIsTimecode, operation.printer); });
}

} // namespace

void addTimecodeCommand(CommandLine &program)
{
    Subcommand timecode = program.add("timecode", "Convert and calculate timecodes");
    addOperation(timecode, {"format", "Frame counts to timecodes", "FRAMES", true,
                            "Frame number of the first frame", false, formatFrames});
    addOperation(timecode, {"parse", "Timecodes to frame counts", "TC", true,
                            "Frame number of the first frame", false, parseTimecodes});
    addOperation(timecode, {"expand", "Expand what users type into timecode fields", "TEXT", false,
                            "Timecode whose right-hand end is replaced", true, expandTexts});
    addOperation(timecode, {"add", "The sum of two timecodes", "TC", true, nullptr, false,
                            combining(&QVTimecode::addTimecode)});
    addOperation(timecode, {"subtract", "The second timecode minus the first", "TC", true, nullptr, false,
                            combining(&QVTimecode::subtractTimecode)});
}

} // namespace vantrell::cli

#include "cli/OptionValues.h"

#include "cli/Console.h"
#include "markers/MarkerColors.h"
#include "support/files/ProgramArguments.h"

#include <algorithm>
#include <set>

namespace vantrell::cli
{

namespace
{

/// The first sequence of that name; 0 without one.
std::int64_t sequenceNamed(const QString &name, const Menu &menu)
{
    for (std::size_t i = 1; i < menu.size(); ++i) {
        if (menu[i].title == name)
            return std::int64_t(i);
    }
    return 0;
}

std::int64_t sequenceOf(const QString &text, const Menu &menu)
{
    bool isNumber = false;
    const qlonglong index = text.toLongLong(&isNumber);
    if (isNumber && index >= 1 && index < qlonglong(menu.size()))
        return index;
    const std::int64_t named = sequenceNamed(text, menu);
    if (named == 0)
        complain(QStringLiteral("There is no sequence \"%1\".").arg(text));
    return named;
}

} // namespace

std::optional<std::vector<int>> readSequenceOption(const std::vector<std::string> &values,
                                                   MyDocument &document)
{
    const MenuPtr menu = document.sequenceMenu();
    const int count = int(menu->size());
    std::set<int> chosen;
    for (const std::string &value : values) {
        const QString text = fromArgument(value);
        bool isNumber = false;
        const int index = text.toInt(&isNumber);
        const bool isIndex = isNumber && index >= 1 && index < count;
        bool isKnown = isIndex;
        if (isIndex)
            chosen.insert(index);
        for (int i = 1; i < count && !isIndex; ++i) {
            if ((*menu)[std::size_t(i)].title != text)
                continue;
            chosen.insert(i);
            isKnown = true;
        }
        if (!isKnown) {
            complain(QStringLiteral("--sequence: the project has no sequence \"%1\".").arg(text));
            return std::nullopt;
        }
    }
    return std::vector<int>(chosen.begin(), chosen.end());
}

void addCutOptions(Subcommand &command, CutOptions &options, const char *oldHelp)
{
    command.value("OLD", options.before, oldHelp, Subcommand::Need::Required);
    command.value("NEW", options.after, "The project with the new cut, which may be the same",
                  Subcommand::Need::Required);
    command.pair("--sequence", options.sequences,
                 "The sequence of each, by menu index or name; the first of OLD, and that of the same name "
                 "or the first of NEW, when not given");
}

std::optional<CutPair> openCuts(const CutOptions &options, ProjectSession &before, ProjectSession &after)
{
    if (!before.open(fromArgument(options.before)) || !after.open(fromArgument(options.after)))
        return std::nullopt;
    const MenuPtr oldMenu = before.document().sequenceMenu();
    const MenuPtr newMenu = after.document().sequenceMenu();
    if (oldMenu->size() < 2 || newMenu->size() < 2) {
        complain(QStringLiteral("The %1 project has no sequence.")
                     .arg(oldMenu->size() < 2 ? QLatin1String("old") : QLatin1String("new")));
        return std::nullopt;
    }
    std::int64_t oldItem = 1;
    std::int64_t newItem = 1;
    if (options.sequences.empty()) {
        newItem = std::max(sequenceNamed((*oldMenu)[1].title, *newMenu), newItem);
    } else {
        oldItem = sequenceOf(fromArgument(options.sequences.front()), *oldMenu);
        newItem = sequenceOf(fromArgument(options.sequences.back()), *newMenu);
    }
    if (oldItem == 0 || newItem == 0)
        return std::nullopt;
    return CutPair{SequenceEvents::read((*oldMenu)[std::size_t(oldItem)].element),
                   SequenceEvents::read((*newMenu)[std::size_t(newItem)].element), newItem};
}

std::optional<SortDescriptor> readSortOption(const std::string &value, const Columns &columns,
                                             const QString &customPrefix)
{
    SortDescriptor sort{fromArgument(value), false};
    const QString suffix = QStringLiteral(":desc");
    if (sort.column.endsWith(suffix)) {
        sort.column.chop(suffix.size());
        sort.descending = true;
    }
    const bool isCustom = !customPrefix.isNull() && sort.column.startsWith(customPrefix);
    return isCustom || findColumn(columns, sort.column) ? std::optional<SortDescriptor>(sort) : std::nullopt;
}

std::string sortChoices(const Columns &columns)
{
    QStringList identifiers;
    for (const Column &column : columns)
        identifiers.append(column.identifier);
    return identifiers.join(QStringLiteral(", ")).toStdString();
}

std::optional<int> colorChoice(const std::string &value)
{
    const QString text = fromArgument(value);
    const bool isIndex = text.size() == 1 && text >= QStringLiteral("0") && text <= QStringLiteral("7");
    return isIndex ? std::optional<int>(text.toInt()) : MarkerColors::find(text);
}

std::optional<quint64> wholeNumber(const QString &text)
{
    if (text.isEmpty() || text.front().isSpace() || text.back().isSpace())
        return std::nullopt;
    bool ok = false;
    const quint64 natural = text.toULongLong(&ok);
    if (ok)
        return natural;
    const qint64 integer = text.toLongLong(&ok);
    if (ok)
        return quint64(integer);
    return std::nullopt;
}

} // namespace vantrell::cli

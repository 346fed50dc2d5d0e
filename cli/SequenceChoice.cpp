#include "cli/SequenceChoice.h"

#include "cli/Console.h"
#include "support/files/ProgramArguments.h"

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

std::optional<SequencePair> chooseSequences(const std::vector<std::string> &values, const MyDocument &before,
                                            const MyDocument &after)
{
    const MenuPtr oldMenu = before.sequenceMenu();
    const MenuPtr newMenu = after.sequenceMenu();
    if (oldMenu->size() < 2 || newMenu->size() < 2) {
        complain(QStringLiteral("The %1 project has no sequence.")
                     .arg(oldMenu->size() < 2 ? QLatin1String("old") : QLatin1String("new")));
        return std::nullopt;
    }
    SequencePair pair;
    if (values.empty()) {
        pair.before = 1;
        pair.after = sequenceNamed((*oldMenu)[1].title, *newMenu);
        if (pair.after == 0)
            pair.after = 1;
        return pair;
    }
    pair.before = sequenceOf(fromArgument(values.front()), *oldMenu);
    pair.after = sequenceOf(fromArgument(values.back()), *newMenu);
    if (pair.before == 0 || pair.after == 0)
        return std::nullopt;
    return pair;
}

} // namespace vantrell::cli

#include "cli/SequenceOption.h"

#include "cli/Console.h"
#include "support/files/ProgramArguments.h"

#include <set>

namespace vantrell::cli
{

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

} // namespace vantrell::cli

#include "cli/MarkerChoices.h"

#include "markers/MarkerColors.h"
#include "support/files/ProgramArguments.h"

namespace vantrell::cli
{

std::optional<int> colorChoice(const std::string &value)
{
    const QString text = fromArgument(value);
    const bool isIndex = text.size() == 1 && text >= QStringLiteral("0") && text <= QStringLiteral("7");
    return isIndex ? std::optional<int>(text.toInt()) : MarkerColors::find(text);
}

} // namespace vantrell::cli

#pragma once

#include "support/files/Result.h"

/// What holds of the web engine in every program that uses it. Main thread.
namespace vantrell::WebEngine
{

/// To be called before anything of the engine is used. Sets, in the environment, how it starts: drawing
/// without a graphics processor, reaching no host. For root alone it works without its sandbox, which a line
/// on standard error says. A Failure when the system lets it have none, as it would then end the process.
Result<void> prepare();

/// Takes what prepare() set out of the environment again, so that no program started later sees it. Once the
/// engine runs.
void restoreEnvironment();

} // namespace vantrell::WebEngine

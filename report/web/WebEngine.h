#pragma once

#include "support/files/Result.h"

/// Set-up of the web engine, the same in every program that uses it. Main thread.
namespace vantrell::WebEngine
{

/// Must be called before the engine is used. Sets environment variables so that it starts without GPU
/// rendering and without network access. Only root runs it without its sandbox, as a line on standard error
/// says. Fails if the system allows no sandbox, since the engine would then abort the process.
Result<void> prepare();

/// Restores the environment, once the engine is running, so that programs started later do not inherit the
/// changes of prepare().
void restoreEnvironment();

} // namespace vantrell::WebEngine

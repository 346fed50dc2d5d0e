#pragma once

#include "support/files/Result.h"

#include <QString>

namespace vantrell
{

/// The sample project, which the program carries along. Any thread.
namespace SampleProject
{

/// Where the user's copy is.
QString folder();

/// The path of the project in the folder. Copies it there with its recut and its media, and with the
/// addresses of the media changed to that place; what stands there already is left as it is.
Result<QString> prepare(const QString &folder);

} // namespace SampleProject

} // namespace vantrell

#pragma once

#include "handover/Checksums.h"

#include <QString>

namespace vantrell
{

/// How far a run has come, for people: sizes, files and the time that is left.
QString transferText(const ChecksumRun::Progress &progress);

} // namespace vantrell

#pragma once

namespace vantrell
{

/// What a program does before anything else. Standard streams that are closed are opened on /dev/null, so
/// that no file gets their numbers; a write beyond the limit of a file's size fails instead of ending the
/// program.
void prepareProcess();

} // namespace vantrell

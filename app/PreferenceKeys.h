#pragma once

#include <QString>

/// User defaults that the start-up and the preferences share.
namespace vantrell::PreferenceKey
{

/// An integer; 1: the open dialog is shown at start-up.
inline const QString showOpenDialog = QStringLiteral("showOpenDialogAtStartup");
/// A boolean: unsaved changes are kept in a journal.
inline const QString journal = QStringLiteral("journal");

} // namespace vantrell::PreferenceKey

#pragma once

#include <QString>

namespace vantrell
{

/// The file browser of the user's session, reached over the session bus.
class FileBrowser
{
public:
    FileBrowser() = delete;

    /// How long showItem() waits for the file browser, in milliseconds.
    static constexpr int TimeoutMs = 2000;

    /// Asks the file browser to show the item at the absolute path selected in its folder. False when
    /// there is no session bus or no file browser, or when it does not answer in time. Any thread.
    static bool showItem(const QString &path);
};

} // namespace vantrell

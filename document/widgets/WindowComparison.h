#pragma once

#include "document/widgets/WindowPart.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace vantrell
{

class CompareWindow;
class MyDocument;

/// Compares sequences of a window's document with those of another project, and adds the markers of the old
/// cut to the document. The window owns it. Main thread.
class WindowComparison final : private WindowPart
{
    Q_DECLARE_TR_FUNCTIONS(vantrell::WindowComparison)

public:
    explicit WindowComparison(const WindowPart &part);
    ~WindowComparison();

    /// Tells it how to find the other windows.
    void setOtherWindows(std::function<std::vector<DocumentWindow *>()> otherWindows)
    {
        m_otherWindows = std::move(otherWindows);
    }

    bool mayCompare() const;

    /// Asks what the project is compared with.
    void ask();
    /// Loads the file in the background, then shows the comparison.
    void compareWithFile(const QString &path);
    /// With a project that is open in another window.
    void compareWithWindow(DocumentWindow &other);
    void compareWithItself();

    /// The window of the comparison; null for none.
    CompareWindow *view() const;
    /// The document is about to go, and the comparison with it.
    void close();

private:
    struct Session;
    struct Run;
    struct Adding;

    std::vector<DocumentWindow *> otherWindows() const;
    void runOpenPanel();
    bool begin();
    void fileOpened(bool isOpen, const QString &message);
    void show(const QString &otherName);
    MyDocument *otherDocument() const;
    QString whyNotNow() const;
    void compare();
    void compared(const std::shared_ptr<Run> &run);
    void addMarkers();
    void addSome();
    void finishAdding();

    std::function<std::vector<DocumentWindow *>()> m_otherWindows;
    std::unique_ptr<Session> m_session;
};

} // namespace vantrell

#pragma once

#include <QApplication>
#include <QString>

namespace vantrell
{

/// The application object: sets the program's names and lets no exception out of an event handler. Created
/// once, on the main thread.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv);

    /// Whether there is a display, or a platform without one was requested.
    static bool hasDisplay(int argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    /// The file manager wants a file opened.
    void openFileRequested(const QString &path);

protected:
    bool event(QEvent *event) override;

private:
    void mendPalette();
};

} // namespace vantrell

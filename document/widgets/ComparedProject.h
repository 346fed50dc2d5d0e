#pragma once

#include "document/HeadlessDocumentInterface.h"
#include "workbench/Workbench.h"

#include <QObject>
#include <QString>

#include <memory>

namespace vantrell
{

/// A project that is read without a window, to be compared with that of a window. When it is destroyed its
/// loading ends and its memory is freed in the background. Main thread.
class ComparedProject final : public QObject
{
    Q_OBJECT

public:
    ComparedProject();
    ~ComparedProject() override;

    /// Starts loading; opened() tells the result. Called once.
    void open(const QString &path);

    QString path() const { return m_path; }
    MyDocument &document() { return m_workbench->document(); }
    /// What the user should know of the file, such as that it had to be repaired; null for nothing.
    QString notice() const { return m_notice; }

Q_SIGNALS:
    /// The message says why it is not open.
    void opened(bool isOpen, const QString &message);

private:
    std::shared_ptr<HeadlessDocumentInterface> m_interface;
    std::unique_ptr<Workbench> m_workbench;
    QString m_path;
    QString m_notice;
};

} // namespace vantrell

#pragma once

#include "document/DocumentInterface.h"
#include "document/widgets/WindowPart.h"
#include "support/files/Result.h"

#include <QPointer>
#include <QString>
#include <QVariantMap>

#include <functional>

namespace vantrell
{

class PrintPanel;

class QVPrintViewController;
class ReportGenerator;
class UserDefaults;
enum class ReportFormat;

/// Prints and exports reports of the tables of a window, which owns it. Main thread.
class WindowReports final : private WindowPart
{
    Q_DECLARE_TR_FUNCTIONS(vantrell::WindowReports)

public:
    WindowReports(const WindowPart &part, UserDefaults &defaults)
        : WindowPart(part)
        , m_defaults(defaults)
    {
    }

    /// Whether a report may be made now.
    bool mayReport() const;
    void printDocument();
    void printDocumentWithSettings(const QVariantMap &settings, bool showPrintPanel,
                                   const std::function<void(bool didPrint)> &didPrint);
    void exportReport();
    void exportReportTo(const QString &path, ReportFormat format);
    /// Closes the print panel, which works on this document in the view that all documents share.
    void close();

private:
    ReportGenerator *prepareReport();
    Result<QByteArray> contentOf(ReportFormat format);
    void write(const QString &path, ReportFormat format, const Result<QByteArray> &content);
    void exported(const QString &path, const Result<void> &written, bool isCancelled);
    void showPrintFailure(const QString &reason);

    UserDefaults &m_defaults;
    QPointer<PrintPanel> m_printPanel;
    QPointer<QVPrintViewController> m_printViewController; ///< of the last print
};

} // namespace vantrell

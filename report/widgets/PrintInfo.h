#pragma once

#include "report/PrintHelper.h"

#include <QMarginsF>
#include <QPageLayout>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace vantrell
{

/// The settings of a print. Content starts at the top of the first page and fills the width between the
/// margins.
struct PrintInfo {
    QPageLayout layout;
    QString printer; ///< its name; null for a PDF file
    QString file;    ///< of the PDF
    int copies = 1;  ///< at most mostCopies
    QString jobTitle;
    bool headerAndFooter = true; ///< page numbers

    /// The paper of the user's country in portrait orientation, with margins of 15 mm.
    PrintInfo();
    /// The same with the values of a dictionary: "paper" (a size name such as "A4"), "landscape", "margin"
    /// (millimetres), "printer", "file", "copies", "headerAndFooter". Invalid values are ignored.
    explicit PrintInfo(const QVariantMap &settings);

    /// The settings as such a dictionary, without the file.
    QVariantMap settings() const;

    /// The page setup for the program that makes PDF files.
    PrintHelper::Pages pages() const
    {
        return {paper(), layout.orientation() == QPageLayout::Landscape, margin(), headerAndFooter};
    }

    /// The names of the available paper sizes, as used by the printing system.
    static QStringList papers();
    QString paper() const { return layout.pageSize().key(); }
    /// Any other name is ignored.
    void setPaper(const QString &paper);

    /// Millimetres.
    double margin() const { return layout.margins(QPageLayout::Millimeter).left(); }
    /// Limited to the range below.
    void setMargin(double millimetres);

    static constexpr int mostCopies = 999;
    static constexpr double narrowestMargin = 5; ///< millimetres; printers cannot print closer to the edge
    static constexpr double widestMargin = 50;
};

} // namespace vantrell

#pragma once

#include "report/PrintHelper.h"

#include <QMarginsF>
#include <QPageLayout>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace vantrell
{

/// How and where a page is printed. What is printed begins at the top of the first page and is as wide as the
/// margins leave room for.
struct PrintInfo {
    QPageLayout layout;
    QString printer; ///< its name; null for a PDF file
    QString file;    ///< of the PDF
    int copies = 1;  ///< at most mostCopies
    QString jobTitle;
    bool headerAndFooter = true; ///< the number at the foot of each page

    /// The paper of the user's country, upright, with margins of 15 mm.
    PrintInfo();
    /// The same with what the dictionary says otherwise: "paper" (a size's name such as "A4"), "landscape",
    /// "margin" (millimetres), "printer",
    /// "file", "copies", "headerAndFooter". What makes no sense is passed over.
    explicit PrintInfo(const QVariantMap &settings);

    /// The dictionary that makes the same settings, whatever the file.
    QVariantMap settings() const;

    /// The same for the program that makes PDF files.
    PrintHelper::Pages pages() const;

    /// The names of the papers that there are to choose from, those of the printing system too.
    static QStringList papers();
    QString paper() const { return layout.pageSize().key(); }
    /// Nothing for a name that is none of those.
    void setPaper(const QString &paper);

    double margin() const; ///< millimetres
    /// Within the limits below.
    void setMargin(double millimetres);

    static constexpr int mostCopies = 999;
    static constexpr double narrowestMargin = 5; ///< millimetres, which printers leave blank anyway
    static constexpr double widestMargin = 50;
};

} // namespace vantrell

#include "report/web/PdfPages.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <exception>
#include <string>

namespace vantrell::PdfPages
{

namespace
{

// In points
constexpr double fontSize = 8;
constexpr double lowestBaseline = 8;

/// The width of digits, spaces and slashes in Helvetica.
double widthOf(const std::string &text)
{
    double units = 0; // thousandths of the font's size
    for (const char c : text)
        units += c == ' ' || c == '/' ? 278 : 556;
    return units / 1000 * fontSize;
}

void addNumber(QPDF &pdf, QPDFPageObjectHelper &page, const QPDFObjectHandle &font, const std::string &text,
               double lowerMargin)
{
    QPDFObjectHandle resources = page.getAttribute("/Resources", true);
    if (!resources.isDictionary())
        resources =
            page.getObjectHandle().replaceKeyAndGetNew("/Resources", QPDFObjectHandle::newDictionary());
    QPDFObjectHandle fonts = resources.getKey("/Font");
    if (fonts.isDictionary())
        fonts = fonts.shallowCopy(); // pages may share it
    else
        fonts = QPDFObjectHandle::newDictionary();
    const std::string name = "/VantrellNumber";
    fonts.replaceKey(name, font);
    resources.replaceKey("/Font", fonts);
    const QPDFObjectHandle::Rectangle box = page.getMediaBox().getArrayAsRectangle();
    const double left = (box.llx + box.urx - widthOf(text)) / 2;
    const double baseline = box.lly + std::max(lowestBaseline, (lowerMargin - fontSize) / 2);
    // The engine's own content changes the scale.
    page.addPageContents(pdf.newStream("q\n"), true);
    page.addPageContents(pdf.newStream("\nQ\nq 0.35 g BT " + name + " " + std::to_string(fontSize) + " Tf " +
                                       std::to_string(left) + " " + std::to_string(baseline) + " Td (" +
                                       text + ") Tj ET Q\n"),
                         false);
}

} // namespace

Result<QByteArray> finish(const QByteArray &bytes, const QString &title, bool withNumbers, double lowerMargin)
{
    try {
        QPDF pdf;
        pdf.processMemoryFile("report", bytes.constData(), std::size_t(bytes.size()));
        if (!title.isNull()) {
            QPDFObjectHandle info = pdf.getTrailer().getKey("/Info");
            if (!info.isDictionary()) {
                info = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
                pdf.getTrailer().replaceKey("/Info", info);
            }
            info.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(title.toStdString()));
            info.replaceKey("/Creator", QPDFObjectHandle::newString("Vantrell"));
        }
        if (withNumbers) {
            const QPDFObjectHandle font = pdf.makeIndirectObject(
                QPDFObjectHandle::parse("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"));
            std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(pdf).getAllPages();
            const std::string count = " / " + std::to_string(pages.size());
            for (std::size_t i = 0; i < pages.size(); ++i)
                addNumber(pdf, pages[i], font, std::to_string(i + 1) + count, lowerMargin);
        }
        QPDFWriter writer(pdf);
        writer.setOutputMemory();
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.write();
        const std::shared_ptr<Buffer> output = writer.getBufferSharedPointer();
        return QByteArray(reinterpret_cast<const char *>(output->getBuffer()), qsizetype(output->getSize()));
    } catch (const std::exception &exception) {
        return Failure{QStringLiteral("The pages could not be put together: %1.")
                           .arg(QString::fromUtf8(exception.what()))};
    }
}

} // namespace vantrell::PdfPages

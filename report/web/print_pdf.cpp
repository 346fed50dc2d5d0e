// vantrell-print-pdf: makes the PDF of a report, see report/PrintHelper.h.

#include "report/PaperSize.h"
#include "report/web/PdfPages.h"
#include "report/web/ReportPage.h"
#include "report/web/WebEngine.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageLayout>

#include <algorithm>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <sys/prctl.h>
#include <utility>

using namespace vantrell;

namespace
{

constexpr int failed = 1;
constexpr int wrongUsage = 2;
constexpr double widestMargin = 100; // millimetres
constexpr double standardMargin = 15;

struct Order {
    QString html;
    QString images;
    QString output;
    QPageLayout layout;
    bool withNumbers = true;
};

void complain(const QString &message)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), qPrintable(message));
}

std::optional<QPageSize> sizeNamed(const QString &name)
{
    for (int id = 0; id < QPageSize::Custom; ++id) {
        if (QPageSize::key(QPageSize::PageSizeId(id)).compare(name, Qt::CaseInsensitive) == 0)
            return QPageSize(QPageSize::PageSizeId(id));
    }
    return std::nullopt;
}

/// Nothing, after a message, for wrong usage.
std::optional<Order> orderOf(const QStringList &arguments)
{
    QCommandLineParser parser;
    // answerOption() prints the help, so the options have no descriptions.
    const auto option = [](const QStringList &names, const char *value, const QString &standard = {}) {
        return QCommandLineOption(names, QString(), QString::fromLatin1(value), standard);
    };
    const QCommandLineOption html = option({QStringLiteral("html")}, "FILE");
    const QCommandLineOption images = option({QStringLiteral("images")}, "FOLDER");
    const QCommandLineOption output = option({QStringLiteral("o"), QStringLiteral("output")}, "OUTPUT");
    const QCommandLineOption paper = option({QStringLiteral("paper")}, "NAME", PaperSize::ofCountry());
    const QCommandLineOption margin =
        option({QStringLiteral("margin")}, "MM", QString::number(standardMargin));
    const QCommandLineOption landscape(QStringLiteral("landscape"));
    const QCommandLineOption noNumbers(QStringLiteral("no-numbers"));
    parser.addOptions({html, images, output, paper, landscape, margin, noNumbers});
    if (!parser.parse(arguments)) {
        complain(parser.errorText());
        return std::nullopt;
    }
    const auto pageSize = sizeNamed(parser.value(paper));
    bool isNumber = false;
    const double width = parser.value(margin).toDouble(&isNumber);
    const bool isComplete = parser.isSet(html) && parser.isSet(images) && parser.isSet(output) &&
                            parser.positionalArguments().isEmpty();
    if (!isComplete)
        complain(QStringLiteral("Wanted are --html FILE --images FOLDER -o OUTPUT, see --help."));
    else if (!pageSize)
        complain(QStringLiteral("--paper: there is no such size."));
    else if (!isNumber || !(width >= 0 && width <= widestMargin))
        complain(QStringLiteral("--margin: a number from 0 to 100, in millimetres."));
    else {
        return Order{QFileInfo(parser.value(html)).absoluteFilePath(),
                     QFileInfo(parser.value(images)).absoluteFilePath(),
                     QFileInfo(parser.value(output)).absoluteFilePath(),
                     QPageLayout(*pageSize,
                                 parser.isSet(landscape) ? QPageLayout::Landscape : QPageLayout::Portrait,
                                 QMarginsF(width, width, width, width), QPageLayout::Millimeter),
                     !parser.isSet(noNumbers)};
    }
    return std::nullopt;
}

Result<void> write(const QString &path, const QByteArray &pdf)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.flush())
        return Failure{QStringLiteral("The PDF could not be written: %1.").arg(file.errorString())};
    return {};
}

/// Loads the page, reads its title, makes the PDF, writes it to the file and ends the program.
class Printing
{
public:
    explicit Printing(Order order)
        : m_order(std::move(order))
        , m_page(m_order.images)
    {
        QObject::connect(&m_page, &QWebEnginePage::loadFinished, &m_page, [this](bool isLoaded) {
            if (std::exchange(m_hasLoaded, true))
                return; // a blocked navigation of the page
            if (isLoaded)
                readTitle();
            else
                end(Failure{QStringLiteral("The report could not be loaded.")});
        });
        QObject::connect(&m_page, &QWebEnginePage::renderProcessTerminated, &m_page,
                         [this] { end(Failure{QStringLiteral("The web engine ended too soon.")}); });
        m_page.loadReport(m_order.html);
    }

private:
    void readTitle()
    {
        const QString script = QStringLiteral("document.querySelector('h1')?.textContent ?? ''");
        m_page.run(script, [this](const QVariant &title) { makePdf(title.toString()); });
    }

    void makePdf(const QString &title)
    {
        m_page.makePdf(m_order.layout, [this, title](const QByteArray &pages) {
            if (pages.isEmpty()) {
                end(Failure{QStringLiteral("The web engine made no pages of the report.")});
                return;
            }
            const double margin = m_order.layout.margins(QPageLayout::Point).bottom();
            const Result<QByteArray> pdf = PdfPages::finish(pages, title, m_order.withNumbers, margin);
            end(pdf ? write(m_order.output, pdf.value()) : Result<void>(pdf.failure()));
        });
    }

    static void end(const Result<void> &result)
    {
        if (!result)
            complain(result.message());
        QCoreApplication::exit(result ? 0 : failed);
    }

    const Order m_order;
    ReportPage m_page;
    bool m_hasLoaded = false;
};

/// Handles the options that need no web engine; false for any other.
bool answerOption(QByteArrayView option)
{
    if (option == "--version") {
        std::puts("vantrell-print-pdf " VANTRELL_VERSION);
        return true;
    }
    if (option == "--help" || option == "-h") {
        std::puts(
            "Usage: vantrell-print-pdf --html FILE --images FOLDER -o OUTPUT [OPTION...]\n\n"
            "Makes a PDF of a report, as vantrell-cli report and vantrell have it do. Nothing is read but\n"
            "FILE and the pictures in FOLDER, and no script in FILE runs.\n\nOptions:\n"
            "  -h, --help      Print this help and exit\n"
            "  --version       Print the version and exit\n"
            "  --html FILE     The report, HTML in UTF-8, in a file whose name ends in .html\n"
            "  --images FOLDER The folder of the pictures that the report may show\n"
            "  -o OUTPUT       The PDF\n"
            "  --paper NAME    A4, Letter, ...; what the country uses unless given\n"
            "  --landscape     Turn the pages on their side\n"
            "  --margin MM     The margins in millimetres, 15 unless given\n"
            "  --no-numbers    Leave the pages without numbers");
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    // Without its parent nobody waits for the PDF.
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (argc == 2 && answerOption(argv[1]))
        return EXIT_SUCCESS;
    std::setlocale(LC_ALL, ""); // determines the paper size
    QCoreApplication::setApplicationName(QStringLiteral("vantrell-print-pdf"));
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    std::optional<Order> order = orderOf(arguments);
    if (!order)
        return wrongUsage;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const Result<void> prepared = WebEngine::prepare();
    if (!prepared) {
        complain(prepared.message());
        return failed;
    }
    int count = 1; // hides the arguments from the application, which has options of its own
    const QGuiApplication application(count, argv);
    const Printing printing(std::move(*order));
    return QCoreApplication::exec();
}

#include "report/ReportGenerator.h"

#include "document/MyDocument.h"
#include "markers/MarkerPresets.h"
#include "report/ReportWriter.h"
#include "support/files/FileUtilities.h"
#include "support/settings/UserDefaults.h"

#include <QTextStream>

namespace vantrell
{

namespace
{

const QString projectTitleKey = QStringLiteral("projectTitle");
const QString printColorLabelsKey = QStringLiteral("printColorLabels");

constexpr std::size_t firstSelected = 3; // columns, until the user chooses others

/// The preset's label of each colour, which may be empty; the name of a colour without a label.
std::array<QString, MarkerColors::count> colorLabels(const MarkerPresets &presets)
{
    std::array<QString, MarkerColors::count> labels;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const QString &name = MarkerColors::table()[i].label;
        const auto &dictionary = presets.markerLabelDict();
        labels[i] = dictionary && dictionary->contains(name) ? dictionary->value(name).toString() : name;
    }
    return labels;
}

} // namespace

ReportGenerator::ReportGenerator(MyDocument &document, const MarkerPresets &presets, UserDefaults *defaults,
                                 const QString &imageFolder)
    : m_document(document)
    , m_presets(presets)
    , m_defaults(defaults)
    , m_imageFolder(imageFolder)
{
    if (!defaults)
        return;
    QObject::connect(defaults, &UserDefaults::changed, &m_observer, [this](const QString &key) {
        if (key == projectTitleKey || key == printColorLabelsKey)
            updateBody();
    });
}

void ReportGenerator::setPrintTable(Tab table, const Columns &columns)
{
    m_printTableRef = table;
    m_printColumnArray.clear();
    for (const Column &column : columns) {
        if (column.title.isEmpty())
            continue;
        const int selected = m_printColumnArray.size() < firstSelected ? 1 : 0;
        m_printColumnArray.push_back({column.title, column.identifier, selected, column});
    }
}

void ReportGenerator::setColumnSelected(std::size_t index, bool selected)
{
    if (index >= m_printColumnArray.size())
        return;
    m_printColumnArray[index].selected = selected ? 1 : 0;
    updateBody();
}

QString ReportGenerator::generateHTMLForPrinting(bool wholeDocument) const
{
    const ReportTable content = table();
    QString text;
    if (content.isEmpty())
        return text;
    QTextStream out(&text);
    ReportWriter::writeHTML(content, wholeDocument, out);
    out.flush();
    return text;
}

Result<void> ReportGenerator::writeHTML(QIODevice &device, bool wholeDocument) const
{
    return write(device, [wholeDocument](const ReportTable &content, QTextStream &out) {
        ReportWriter::writeHTML(content, wholeDocument, out);
    });
}

Result<void> ReportGenerator::writeCSV(QIODevice &device) const
{
    return write(device, ReportWriter::writeCSV);
}

Result<void> ReportGenerator::writePage(QIODevice &device) const
{
    return write(device, ReportWriter::writePage);
}

ReportTable ReportGenerator::table() const
{
    ReportTable::Options options;
    const QVariant title = m_defaults ? m_defaults->value(projectTitleKey) : QVariant();
    options.title = title.isNull() ? FileUtilities::deletingPathExtension(m_document.fileURL().fileName())
                                   : title.toString();
    if (m_defaults && m_defaults->integer(printColorLabelsKey) == 1)
        options.colorLabels = colorLabels(m_presets);
    options.imageFolder = m_imageFolder;
    return ReportTable(m_document, m_printTableRef, m_printColumnArray, std::move(options));
}

Result<void>
ReportGenerator::write(QIODevice &device,
                       const std::function<void(const ReportTable &, QTextStream &)> &writer) const
{
    const ReportTable content = table();
    if (content.isEmpty())
        return Failure{QStringLiteral("There are no rows to report.")};
    QTextStream out(&device); // in UTF-8
    writer(content, out);
    out.flush();
    if (out.status() != QTextStream::Ok)
        return Failure{device.errorString()};
    return {};
}

void ReportGenerator::updateBody() const
{
    if (!m_bodyConsumer)
        return;
    const QString body = generateHTMLForPrinting(false);
    if (!body.isNull())
        m_bodyConsumer(body);
}

} // namespace vantrell

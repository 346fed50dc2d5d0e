#pragma once

#include "markers/MarkerEditor.h"
#include "markers/MarkerFields.h"
#include "markers/MarkerInventory.h"
#include "markers/MarkerKeys.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVLog.h"
#include "tests/support/LoadedProject.h"
#include "tests/support/ScriptedAlertPresenter.h"

#include <QTest>

#include <mutex>

namespace vantrell
{

/// A project loaded from text, with its markers, on the Markers tab. Main thread.
struct MarkerProject : LoadedProject {
    explicit MarkerProject(const QByteArray &xml, UserDefaults *defaults = nullptr)
        : fields(document, defaults)
    {
        static std::once_flag logged;
        std::call_once(logged, [] { QVLog::createNewLog(QStringLiteral("markers"), true); });
        QVAlert::setPresenter(alerts);
        builders = {[this] { inventory.populateMarkerData(); }};
        document.viewState().selectedTab = Tab::Markers;
        if (!load(xml))
            qFatal("The project could not be loaded.");
    }
    ~MarkerProject()
    {
        document.close();
        QVAlert::setPresenter(nullptr);
    }

    const RowRecordPtr &marker(std::size_t row) const { return document.markerArray().at(row); }

    /// Edits the cell in the rows.
    void set(const std::vector<std::size_t> &rows, const char *column, const QString &text)
    {
        world.selectRows(Tab::Markers, rows);
        editor.setObjectValue(text, QString::fromLatin1(column));
    }

    /// The values of the keys, with "-" for what is absent.
    static QString values(const RowRecord &record, const QString &keys)
    {
        QStringList texts;
        for (const QString &key : keys.split(QLatin1Char(' ')))
            texts.append(record.contains(RecordKey(key)) ? text(*record.find(RecordKey(key)))
                                                         : QStringLiteral("-"));
        return texts.join(QLatin1Char('|'));
    }
    /// The values of all markers, a line each.
    QString values(const QString &keys) const
    {
        QStringList lines;
        for (const RowRecordPtr &record : document.markerArray())
            lines.append(values(*record, keys));
        return lines.join(QLatin1Char('\n'));
    }
    /// All keys with their values, in the record's order.
    static QString whole(const RowRecord &record)
    {
        QStringList texts;
        for (std::size_t i = 0; i < record.size(); ++i)
            texts.append(record.keyAt(i).text() + QLatin1Char('=') + text(record.valueAt(i)));
        return texts.join(QLatin1Char('|'));
    }
    static QString text(const RecordValue &value)
    {
        if (const auto *integer = std::get_if<std::int64_t>(&value))
            return QString::number(*integer);
        if (const auto *flag = std::get_if<bool>(&value))
            return *flag ? QStringLiteral("true") : QStringLiteral("false");
        if (const auto *node = std::get_if<XmlNode>(&value))
            return node->isAttached() ? node->locationPath() : QStringLiteral("out");
        return std::get<QString>(value);
    }

    QString tree() const { return XmlDocument::textOfElement(document.xmlDoc()->rootElement()); }

    std::shared_ptr<ScriptedAlertPresenter> alerts = std::make_shared<ScriptedAlertPresenter>();
    MarkerFields fields;
    MarkerInventory inventory{document, fields};
    MarkerEditor editor{document, inventory};
};

} // namespace vantrell

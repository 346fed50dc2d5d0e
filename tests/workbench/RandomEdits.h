#pragma once

#include "tests/support/RandomProject.h"
#include "tests/workbench/UndoProject.h"

#include <algorithm>

namespace vantrell
{

/// Edits one project at random.
class RandomEdits
{
public:
    RandomEdits(UndoProject &edited, quint64 seed)
        : p(edited)
        , m_random(seed)
    {
    }

    void editOnce()
    {
        p.alerts->queueAnswer(1);
        p.alerts->queueAnswer(1);
        switch (m_random.below(12)) {
        case 0:
            p.workbench.markerEditor().addMarker();
            break;
        case 1:
            p.workbench.markerEditor().addMarkerWithName(text(), m_random.below(50), -1, text(),
                                                         QStringLiteral("green"), m_random.below(4));
            break;
        case 2:
            p.workbench.markerEditor().remove(someRows(Tab::Markers));
            break;
        case 3:
            p.workbench.markerEditor().offset(someRows(Tab::Markers), QString::number(m_random.below(50)),
                                              p.document().markerArray());
            break;
        case 4:
            for (const RowRecordPtr &effect : someRows(Tab::Effects, 1))
                p.workbench.effectEditor().updateXMLEffect(
                    effect, QString::fromLatin1(m_random.pick({"enabled", "enabled", "note", "1"})),
                    QString::number(m_random.below(2)));
            break;
        case 5:
            p.workbench.effectEditor().remove(someRows(Tab::Effects, 3));
            break;
        case 6:
            p.import({text(), text(), text()});
            break;
        case 7:
            look();
            break;
        default:
            setCells();
        }
    }

private:
    QString text()
    {
        return QString::fromUtf8(
            m_random.pick({"New", "Marker 2", "a&b", "", "É \U0001F3AC", "<", "x\x01y"}));
    }

    RowList someRows(Tab tab, int most = 5)
    {
        const RowList &all = p.document().rowView(tab).list();
        RowList rows;
        for (int i = all.empty() ? 0 : m_random.below(most) + 1; i > 0; --i) {
            const RowRecordPtr &row = all[std::size_t(m_random.below(int(all.size())))];
            if (std::find(rows.begin(), rows.end(), row) == rows.end())
                rows.push_back(row);
        }
        return rows;
    }

    void setCells()
    {
        static const QByteArrayList columns = {"name",        "comment",  "color",   "in",
                                               "out",         "chapter",  "scoring", "QVCUSTOM_T",
                                               "compression", "sequence", "clip",    "QVCUSTOM_U"};
        const QByteArray column = m_random.pick(columns);
        const bool isText = column == "name" || column == "comment" || column.startsWith('Q');
        p.workbench.markerEditor().setValue(someRows(Tab::Markers), QString::fromLatin1(column),
                                            isText ? text() : QString::number(m_random.below(8)));
    }

    /// Changes what is on show, and how.
    void look()
    {
        const Tab tab = m_random.oneIn(2) ? Tab::Markers : Tab::Effects;
        p.document().viewState().markerFilter = m_random.oneIn(2) ? 0 : m_random.below(8);
        p.world.show(tab);
        p.document().rebuildRows(tab);
        if (m_random.oneIn(2))
            p.document().rowView(tab).sortBy({{QStringLiteral("name"), m_random.oneIn(2)}});
        p.world.selectRows(tab, {0, 1});
    }

    UndoProject &p;
    RandomNumbers m_random;
};

} // namespace vantrell

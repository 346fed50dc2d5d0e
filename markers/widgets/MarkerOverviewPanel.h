#pragma once

#include "document/Menu.h"
#include "markers/MarkerOverview.h"
#include "markers/SequenceClips.h"

#include <QString>
#include <QWidget>

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

class QLabel;
class QTimer;

namespace vantrell
{

class MarkerStrip;
class MyDocument;
class OverviewPopUp;
class TabPane;
class UserDefaults;

/// The overview above the marker table: the strip of one sequence, and the pop-up that chooses it. Unless the
/// user has chosen one it is the sequence of the selected row, at first the one with most markers. It is made
/// anew, in steps, when records change; when others are on show, it is only found out which. Main thread; a
/// child of the pane.
class MarkerOverviewPanel final : public QWidget
{
    Q_OBJECT

public:
    /// The user default, which holds in all windows, that tells whether overviews show; they do without one.
    static inline const QString shownDefault = QStringLiteral("markerOverview");
    static bool isWanted(const UserDefaults &defaults);

    MarkerOverviewPanel(TabPane &pane, MyDocument &document);

    MarkerStrip &strip() const { return *m_strip; }
    /// Its first item follows the selected row.
    OverviewPopUp &popUp() const { return *m_popUp; }
    /// The sequence that the strip shows; null without one, and when the user has hidden the overview.
    XmlNode sequence() const;
    /// Shows that sequence, unless the user has chosen one, until a row of another is selected.
    void follow(XmlNode sequence);
    /// Whether rows have changed that the strip does not show yet.
    bool isOutdated() const { return m_isOutdated; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void rowsChanged();
    void recordsChanged();
    void work();
    bool workOn(std::size_t rows);
    void takeSelection();
    void markSelected();
    void revealSelected();
    void showSequence();
    void fillPopUp();
    void choose(std::size_t marker, bool toggles);
    std::shared_ptr<const SequenceClips> clipsOf(XmlNode sequence);

    TabPane &m_pane;
    MyDocument &m_document;
    OverviewPopUp *m_popUp;
    QLabel *m_range;
    MarkerStrip *m_strip;
    QTimer *m_timer;

    bool m_isOutdated = true;
    MarkerOverview m_overview;
    std::optional<MarkerOverviewBuilder> m_builder; ///< of the next one
    std::optional<MarkerOverview> m_next;
    std::optional<std::uint64_t> m_revision;    ///< of the list of the next one, or of this one without it
    std::optional<ShownMarkers> m_shownMarkers; ///< of the same
    OverviewSequence m_empty;                   ///< the sequence on show if it has no markers
    XmlNode m_shown;
    XmlNode m_followed;   ///< of the row that was selected last
    XmlNode m_chosen;     ///< by the user
    Menu m_items;         ///< of the pop-up
    QStringList m_titles; ///< of the items, told apart
    std::unordered_map<XmlNode, std::shared_ptr<const SequenceClips>>
        m_clips; ///< of sequences that were shown
};

} // namespace vantrell

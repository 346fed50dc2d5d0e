#pragma once

#include "compare/ChangeListFile.h"
#include "compare/CutComparison.h"
#include "compare/CutGuess.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>

class QAbstractTableModel;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QPushButton;
class QTableView;

namespace vantrell
{

class CarriedMarkerModel;
class ChangeTableModel;
class CutStrips;

/// The window that compares two cuts: what changed, as a table and as strips, and where the markers of the
/// old cut go. It asks its owner, by signals, to compare and to add the markers. Deletes itself when it is
/// closed. Main thread.
class CompareWindow final : public QWidget
{
    Q_OBJECT

public:
    struct Project {
        QString name;
        QStringList sequences; ///< by menu item, from item 1 on
    };

    /// The project of the window's owner, to which markers are added, and the other one; the same for two
    /// sequences of one project. The other one starts as the old one.
    CompareWindow(const Project &own, const Project &other, bool isSame, const CutGuess &guess,
                  const QString &folder, QWidget *parent);
    ~CompareWindow() override;

    /// Whether the new cut is in the owner's project.
    bool isOwnNew() const { return m_isOwnNew || m_isSame; }
    /// The chosen items of the sequence menus.
    std::int64_t oldSequence() const;
    std::int64_t newSequence() const;

    /// Until one of the next two is called nothing can be chosen.
    void beginComparing();
    void showComparison(std::shared_ptr<CutComparison> comparison);
    /// There is no comparison, and this is why; empty when the user cancelled.
    void comparisonFailed(const QString &reason);
    /// Something that the user should know about the other project, such as that it had to be repaired.
    void showRemark(const QString &text) { setNotice(text, false); }
    /// Null before there is one.
    const std::shared_ptr<CutComparison> &comparison() const { return m_comparison; }

    /// A project was changed: what is shown may no longer hold.
    void noteChanged();
    /// The other project is gone: nothing can be compared or added any more.
    void noteOtherGone();

    /// While markers are being added nothing can be chosen.
    void setAdding(bool isAdding);
    void noteAdded(std::size_t count);

    /// Writes the changes on show, in their order, in the background.
    void exportTo(const QString &path, ChangeListFormat format);

Q_SIGNALS:
    /// The chosen sequences are to be compared.
    void comparisonWanted();
    void cancelWanted();
    /// The wanted markers are to be added to the owner's project.
    void addWanted();
    /// An export has ended.
    void exported(bool isWritten);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeHeader();
    void makeNotice();
    void makeFilters();
    void makeTables();
    void makeButtons();
    QWidget *makeChanges();
    QWidget *makeMarkers();
    QTableView *makeTable(QAbstractTableModel *model, const QString &name);
    void fillSequences();
    void swapCuts();
    void compare();
    void setNotice(const QString &text, bool offersAgain);
    void filtersChanged();
    void updateCounts();
    void updateButtons();
    void chooseRow();
    void showChosen();
    void chooseMarker();
    void askForFile(ChangeListFormat format);

    const Project m_own;
    const Project m_other;
    const bool m_isSame;
    const QString m_folder;
    CutGuess m_guess;
    bool m_isOwnNew = true;
    bool m_isComparing = false;
    bool m_isAdding = false;
    bool m_isStale = false;
    bool m_isOtherGone = false;
    std::shared_ptr<CutComparison> m_comparison;
    std::optional<std::size_t> m_chosen; // change
    bool m_isShowingChosen = false;

    QLabel *m_oldProject = nullptr;
    QLabel *m_newProject = nullptr;
    QComboBox *m_oldSequences = nullptr;
    QComboBox *m_newSequences = nullptr;
    QPushButton *m_swap = nullptr;
    QFrame *m_notice = nullptr;
    QLabel *m_noticeText = nullptr;
    QPushButton *m_again = nullptr;
    QFrame *m_progress = nullptr;
    QTimer m_progressDelay;
    std::array<QCheckBox *, 10> m_filters = {}; // in the order of ChangeColors::kinds
    CutStrips *m_strips = nullptr;
    ChangeTableModel *m_changeModel = nullptr;
    CarriedMarkerModel *m_markerModel = nullptr;
    QTableView *m_changes = nullptr;
    QTableView *m_markers = nullptr;
    QLabel *m_markersText = nullptr;
    QLabel *m_status = nullptr;
    QPushButton *m_tickAll = nullptr;
    QPushButton *m_tickNone = nullptr;
    QPushButton *m_export = nullptr;
    QPushButton *m_add = nullptr;
};

} // namespace vantrell

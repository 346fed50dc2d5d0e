#pragma once

#include "handover/RelinkPlan.h"
#include "handover/widgets/RelinkSearch.h"

#include <QDialog>
#include <QStringList>

#include <memory>
#include <vector>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace vantrell
{

class RelinkTableModel;
class SheetTable;
class UserDefaults;

/// The sheet that looks for missing media files in folders, shows what was found, and asks which of it the
/// project shall use. Deletes itself when closed. Main thread; the defaults, which keep the folders, outlive
/// it.
class RelinkSheet final : public QDialog
{
    Q_OBJECT

public:
    /// The user default with the folders that were searched last, an array of paths.
    static inline const QString foldersKey = QStringLiteral("relinkFolders");

    /// Without stored folders it offers the given one. \a url is the missing file that the user began with;
    /// empty for none.
    RelinkSheet(std::vector<MissingFile> missing, const QString &folder, const QString &url,
                UserDefaults &defaults, QWidget *window);

    QStringList folders() const;
    void addFolder(const QString &path);
    RelinkTableModel &model() const { return *m_model; }
    bool isSearching() const { return bool(m_search); }

public Q_SLOTS:
    /// Starts the search, or stops the one that runs.
    void search();

Q_SIGNALS:
    /// The user wants these files in the project; the sheet has closed.
    void relinkChosen(const std::vector<vantrell::RelinkChoice> &choices);
    /// The user wants the files found by a mapping instead; the sheet has closed.
    void mappingChosen(const vantrell::PathMapping &mapping);
    void pathMappingsRequested();

private:
    QWidget *makeFolders();
    QWidget *makeButtons();
    void askForFolder();
    void removeFolder();
    void showProgress(const FolderWalk::Progress &progress);
    void showResult(const RelinkSearch::Result &result);
    void endSearch();
    void updateControls();
    void relink();
    void useMapping();

    const std::vector<MissingFile> m_missing;
    const QString m_url;
    UserDefaults &m_defaults;
    std::unique_ptr<RelinkSearch> m_search;
    RelinkTableModel *m_model;
    SheetTable *m_table;
    QListWidget *m_folders;
    QPushButton *m_removeFolder;
    QPushButton *m_searchButton;
    QProgressBar *m_busy;
    QLabel *m_status;
    QWidget *m_mappingLine;
    QLabel *m_mappingText;
    QPushButton *m_relink = nullptr;
};

} // namespace vantrell

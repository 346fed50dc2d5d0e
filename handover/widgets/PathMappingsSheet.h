#pragma once

#include "media/PathMapping.h"

#include <QDialog>

#include <vector>

class QLabel;
class QPushButton;

namespace vantrell
{

class SheetTable;
class SheetTableModel;

/// The sheet with the folder mappings of this machine. Deletes itself when closed. Main thread.
class PathMappingsSheet final : public QDialog
{
    Q_OBJECT

public:
    PathMappingsSheet(const PathMappings &mappings, QWidget *window);

    /// What the table holds.
    const std::vector<PathMapping> &rows() const { return m_rows; }
    SheetTableModel &model() const { return *m_model; }

    void accept() override;

public Q_SLOTS:
    void addRow();
    void removeRow();

Q_SIGNALS:
    /// The user has confirmed these mappings; the sheet has closed.
    void chosen(const vantrell::PathMappings &mappings);

private:
    void chooseFolder();
    void updateControls();

    std::vector<PathMapping> m_rows;
    SheetTableModel *m_model;
    SheetTable *m_table;
    QPushButton *m_remove;
    QPushButton *m_choose;
    QLabel *m_problem;
};

} // namespace vantrell

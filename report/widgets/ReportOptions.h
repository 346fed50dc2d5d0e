#pragma once

#include "report/ReportTable.h"

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QListWidget;
class QTimer;

namespace vantrell
{

class ReportGenerator;
class UserDefaults;

/// Tells how many rows a report includes, and has its options: title, labels of marker colours, and columns.
/// Title and labels are kept in the user defaults; every change affects the report at once. Main thread; the
/// generator and the defaults outlive the widget.
class ReportOptions final : public QWidget
{
    Q_OBJECT

public:
    /// `fileTitle` is the default title of the report.
    ReportOptions(ReportGenerator &report, UserDefaults &defaults, const QString &fileTitle, QWidget *parent);

private:
    static QString rowsText(ReportTable::RowCounts rows);
    void showDefault(const QString &key);
    void storeTitle();

    UserDefaults &m_defaults;
    QLineEdit *m_title;
    QCheckBox *m_colorLabels;
    QListWidget *m_columns;
    QTimer *m_titleDelay;
};

} // namespace vantrell

#pragma once

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QListView;
class QTimer;

namespace vantrell
{

class ReportGenerator;
class UserDefaults;

/// What a report shows, for the user to choose: its title, the labels of marker colours, and the columns.
/// Title and labels are settings of the user, which are followed; all of them go to the report at once. Main
/// thread; the generator and the defaults outlive the widget.
class ReportOptions final : public QWidget
{
    Q_OBJECT

public:
    /// `fileTitle` is the report's title unless the user gives it one.
    ReportOptions(ReportGenerator &report, UserDefaults &defaults, const QString &fileTitle, QWidget *parent);

private:
    void showDefault(const QString &key);
    void storeTitle();

    UserDefaults &m_defaults;
    QLineEdit *m_title;
    QCheckBox *m_colorLabels;
    QListView *m_columns;
    QTimer *m_titleDelay;
};

} // namespace vantrell

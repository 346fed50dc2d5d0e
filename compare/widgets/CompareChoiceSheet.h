#pragma once

#include <QDialog>
#include <QStringList>

class QComboBox;
class QPushButton;
class QRadioButton;

namespace vantrell
{

/// Asks what a project is compared with. Opened with open(). Main thread.
class CompareChoiceSheet final : public QDialog
{
    Q_OBJECT

public:
    enum class With {
        File,        ///< another project, whose file is still to be chosen
        OpenProject, ///< one of those that are open
        Itself,      ///< another sequence of the same project
    };

    /// The names of the other projects that are open, and whether this one has several sequences.
    CompareChoiceSheet(const QStringList &openProjects, bool hasSequences, QWidget *parent);

    With with() const;
    /// Index of the open project.
    int openProject() const;

private:
    void updateAcceptTitle();

    QRadioButton *m_file;
    QRadioButton *m_open;
    QRadioButton *m_itself;
    QComboBox *m_projects;
    QPushButton *m_accept;
};

} // namespace vantrell

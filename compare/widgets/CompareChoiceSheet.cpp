#include "compare/widgets/CompareChoiceSheet.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vantrell
{

CompareChoiceSheet::CompareChoiceSheet(const QStringList &openProjects, bool hasSequences, QWidget *parent)
    : QDialog(parent, Qt::Sheet)
    , m_file(new QRadioButton(tr("A project &file"), this))
    , m_open(new QRadioButton(tr("An &open project:"), this))
    , m_itself(new QRadioButton(tr("Another sequence of &this project"), this))
    , m_projects(new QComboBox(this))
{
    setWindowTitle(tr("Compare"));
    setWindowModality(Qt::WindowModal);
    auto *const label = new QLabel(tr("Compare this project with:"), this);
    m_projects->addItems(openProjects);
    m_projects->setAccessibleName(tr("Open project"));
    m_projects->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_projects->setMinimumContentsLength(18);
    m_open->setEnabled(!openProjects.isEmpty());
    m_itself->setEnabled(hasSequences);
    m_file->setChecked(true);
    m_projects->setEnabled(false);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_accept = buttons->addButton(tr("&Choose…"), QDialogButtonBox::AcceptRole);
    m_accept->setDefault(true);
    auto *const open = new QHBoxLayout;
    open->addWidget(m_open);
    open->addWidget(m_projects, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_file);
    layout->addLayout(open);
    layout->addWidget(m_itself);
    layout->addSpacing(6);
    layout->addWidget(buttons);
    for (const QRadioButton *const button : {m_file, m_open, m_itself})
        connect(button, &QRadioButton::toggled, this, &CompareChoiceSheet::updateAcceptTitle);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_file->setFocus();
}

CompareChoiceSheet::With CompareChoiceSheet::with() const
{
    return m_open->isChecked() ? With::OpenProject : m_itself->isChecked() ? With::Itself : With::File;
}

int CompareChoiceSheet::openProject() const
{
    return m_projects->currentIndex();
}

void CompareChoiceSheet::updateAcceptTitle()
{
    m_projects->setEnabled(m_open->isChecked());
    m_accept->setText(m_file->isChecked() ? tr("&Choose…") : tr("&Compare"));
}

} // namespace vantrell

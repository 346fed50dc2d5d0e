#include "handover/widgets/VerificationSheet.h"

#include "support/widgets/SymbolIcon.h"
#include "table/widgets/SheetTable.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace vantrell
{

namespace
{

using State = Verification::State;

/// In the order in which they are shown.
constexpr std::array shownStates{State::Missing, State::Changed, State::Unreadable, State::Same};

QString stateText(State state)
{
    switch (state) {
    case State::Missing:
        return VerificationSheet::tr("missing");
    case State::Changed:
        return VerificationSheet::tr("changed");
    case State::Unreadable:
        return VerificationSheet::tr("unreadable");
    case State::Same:
        break;
    }
    return VerificationSheet::tr("OK");
}

class VerifiedFiles final : public QAbstractTableModel
{
public:
    VerifiedFiles(const std::vector<Verification::File> &files, QObject *parent)
        : QAbstractTableModel(parent)
        , m_files(files)
    {
    }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : int(m_files.size());
    }
    int columnCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : 2; }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal)
            return QVariant();
        if (role == Qt::TextAlignmentRole)
            return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
        if (role != Qt::DisplayRole)
            return QVariant();
        return section == 0 ? VerificationSheet::tr("State") : VerificationSheet::tr("File in the List");
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
            return QVariant();
        const Verification::File &file = m_files[std::size_t(index.row())];
        const QString text = index.column() == 0 ? stateText(file.state) : file.file;
        return role == Qt::ToolTipRole ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
    }

private:
    const std::vector<Verification::File> &m_files;
};

QString summaryOf(const std::vector<Verification::File> &files)
{
    const QLocale locale;
    QStringList parts;
    for (const State state : {State::Same, State::Missing, State::Changed, State::Unreadable}) {
        const auto count = std::count_if(files.begin(), files.end(), [state](const Verification::File &file) {
            return file.state == state;
        });
        if (count > 0)
            parts.append(locale.toString(qlonglong(count)) + QLatin1Char(' ') + stateText(state));
    }
    const QString total =
        files.size() == 1 ? VerificationSheet::tr("1 file")
                          : VerificationSheet::tr("%1 files").arg(locale.toString(qulonglong(files.size())));
    return QStringLiteral("%1: %2.").arg(total, parts.join(QStringLiteral(", ")));
}

} // namespace

VerificationSheet::VerificationSheet(const QString &listName, std::vector<Verification::File> files,
                                     QWidget *window)
    : QDialog(window)
    , m_files(std::move(files))
    , m_summary(summaryOf(m_files))
{
    const auto rank = [](State state) {
        return std::find(shownStates.begin(), shownStates.end(), state) - shownStates.begin();
    };
    std::stable_sort(m_files.begin(), m_files.end(),
                     [&rank](const Verification::File &a, const Verification::File &b) {
                         return rank(a.state) < rank(b.state);
                     });
    const bool isAllSame = m_files.empty() || m_files.front().state == State::Same;
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Verify List"));
    const int character = fontMetrics().averageCharWidth();
    auto *const title = new QLabel(isAllSame ? tr("All files are as listed in “%1”.").arg(listName)
                                             : tr("Not all files are as listed in “%1”.").arg(listName),
                                   this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto *const counts = new QLabel(m_summary, this);
    for (QLabel *const label : {title, counts}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    auto *const table = new SheetTable(new VerifiedFiles(m_files, this), this);
    table->setAccessibleName(tr("Verified files"));
    table->setTextElideMode(Qt::ElideMiddle);
    table->setColumnWidth(0, character * 14);
    table->setMinimumSize(character * 80, fontMetrics().height() * 14);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *const copyButton = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    copyButton->setAutoDefault(false);
    copyButton->setToolTip(tr("Copy the table to the clipboard"));
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    auto *const texts = new QVBoxLayout;
    texts->addWidget(title);
    texts->addWidget(counts);
    auto *const top = new QHBoxLayout;
    if (!isAllSame)
        top->addWidget(new SymbolView(symbolIcon(QStringLiteral(":/icons/warning.svg")), 32, this), 0,
                       Qt::AlignTop);
    top->addLayout(texts, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(table, 1);
    layout->addWidget(buttons);
    connect(copyButton, &QPushButton::clicked, this, &VerificationSheet::copy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->button(QDialogButtonBox::Close)->setFocus();
}

void VerificationSheet::copy() const
{
    QString text;
    for (const Verification::File &file : m_files)
        text += stateText(file.state) + QLatin1Char('\t') + file.file + QLatin1Char('\n');
    QGuiApplication::clipboard()->setText(text);
}

} // namespace vantrell

#include "app/PreferencesWindow.h"

#include "app/PreferenceKeys.h"
#include "app/Translations.h"
#include "app/WebPages.h"
#include "markers/MarkerInventory.h"
#include "support/settings/UserDefaults.h"
#include "table/widgets/TableDates.h"
#include "table/widgets/TableFont.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace vantrell
{

namespace
{

constexpr int hintWidth = 58; // characters of average width

/// A page of a tab widget, with its rows at the top. It scrolls on a screen that is too small for it.
QWidget *pageWith(QFormLayout *form)
{
    auto *const page = new QWidget;
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins(18, 16, 18, 16);
    layout->addLayout(form);
    layout->addStretch(1);
    form->setHorizontalSpacing(14);
    form->setVerticalSpacing(12);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    auto *const scroll = new QScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
    return scroll;
}

/// The size in which no page needs to scroll.
QSize wholeSize(const QTabWidget &pages)
{
    QSize size;
    for (int i = 0; i < pages.count(); ++i) {
        const QWidget &page = *static_cast<const QScrollArea *>(pages.widget(i))->widget();
        size = size.expandedTo(page.minimumSizeHint()).expandedTo({page.sizeHint().width(), 0});
    }
    for (int i = 0; i < pages.count(); ++i) {
        const QWidget &page = *static_cast<const QScrollArea *>(pages.widget(i))->widget();
        size.setHeight(std::max(size.height(), page.heightForWidth(size.width())));
    }
    return size;
}

QLabel *makeHint(const QString &text)
{
    auto *const hint = new QLabel(text);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setMinimumWidth(hint->fontMetrics().averageCharWidth() * hintWidth);
    return hint;
}

} // namespace

PreferencesWindow::PreferencesWindow(UserDefaults &defaults)
    : m_defaults(defaults)
{
    setWindowTitle(tr("Preferences"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setAttribute(Qt::WA_DeleteOnClose, false); // keeps its place and page
    auto *const pages = new QTabWidget(this);
    pages->addTab(makeGeneralPage(), tr("&General"));
    pages->addTab(makeTablesPage(), tr("&Tables"));
    pages->addTab(makeHelpPage(), tr("&Help"));
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setText(tr("&Close"));
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false); // Return ends what is typed into a field
    QPushButton *const restore = buttons->addButton(tr("Restore &Defaults"), QDialogButtonBox::ResetRole);
    restore->setToolTip(tr("Set everything in this window as it is at first"));
    restore->setAutoDefault(false);
    connect(restore, &QPushButton::clicked, this, &PreferencesWindow::restoreDefaults);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(pages, 1);
    layout->addWidget(buttons);
    const QSize chrome = sizeHint() - pages->currentWidget()->sizeHint();
    resize((wholeSize(*pages) + chrome).boundedTo(screen()->availableSize() * 0.9));
    connect(&m_defaults, &UserDefaults::changed, this, &PreferencesWindow::showSettings);
    showSettings();
}

/// A check box, with its effect below it.
QCheckBox *PreferencesWindow::addSwitch(QFormLayout &form, const QString &subject, const QString &title,
                                        const QString &hint)
{
    auto *const box = new QCheckBox(title);
    box->setToolTip(hint);
    auto *const field = new QVBoxLayout;
    field->setSpacing(4);
    field->addWidget(box);
    field->addWidget(makeHint(hint));
    form.addRow(subject, field);
    return box;
}

QWidget *PreferencesWindow::makeGeneralPage()
{
    auto *const form = new QFormLayout;
    m_showsOpenDialog = addSwitch(*form, tr("Start-up:"), tr("Show the &open dialog"),
                                  tr("It opens over the start window, unless a project is open by then."));
    connect(m_showsOpenDialog, &QCheckBox::clicked, this, [this](bool isChecked) {
        m_defaults.setValue(PreferenceKey::showOpenDialog, isChecked ? 1 : 0);
    });
    m_ownOwners =
        addSwitch(*form, tr("Markers:"), tr("&List each marker under its own sequence and clip"),
                  tr("Otherwise sequences at the same position in different bins share one name, and so do "
                     "the clips of a track. All open projects are listed anew."));
    connect(m_ownOwners, &QCheckBox::clicked, this,
            [this](bool own) { m_defaults.setValue(MarkerInventory::ownOwnersDefault, own); });
    m_keepsJournal = addSwitch(
        *form, tr("Unsaved changes:"), tr("&Keep them in a journal"),
        tr("After a crash the journal offers to restore them. A project that has unsaved changes now "
           "follows this setting once they are saved or undone. Journals that a crash has left are "
           "kept, and offered, in any case."));
    connect(m_keepsJournal, &QCheckBox::clicked, this,
            [this](bool keeps) { m_defaults.setValue(PreferenceKey::journal, keeps); });
    addLanguage(*form);
    return pageWith(form);
}

/// Each language is called what it calls itself.
void PreferencesWindow::addLanguage(QFormLayout &form)
{
    m_language = new QComboBox;
    m_language->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_language->addItem(tr("System"), QString());
    for (const Translations::Language &language : Translations::languages())
        m_language->addItem(language.name, language.code);
    connect(m_language, &QComboBox::activated, this, [this](int index) {
        const QString code = m_language->itemData(index).toString();
        m_defaults.setValue(Translations::languageKey, code.isEmpty() ? QVariant() : QVariant(code));
    });
    auto *const title = new QLabel(tr("La&nguage:"));
    title->setBuddy(m_language);
    auto *const field = new QVBoxLayout;
    field->setSpacing(4);
    field->addWidget(m_language);
    field->addWidget(
        makeHint(tr("Holds from the next start on. Reports, exported lists, logs and the command "
                    "line are in English.")));
    form.addRow(title, field);
}

QWidget *PreferencesWindow::makeTablesPage()
{
    auto *const form = new QFormLayout;
    m_usesSystemFont = new QCheckBox(tr("Use the &font of the other controls"));
    form->addRow(tr("Font:"), m_usesSystemFont);
    m_family = new QFontComboBox;
    m_family->setEditable(false);
    form->addRow(tr("Fa&mily:"), m_family);
    m_size = new QSpinBox;
    m_size->setRange(TableFont::smallest, TableFont::largest);
    m_size->setSuffix(tr(" pt"));
    m_size->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    form->addRow(tr("Si&ze:"), m_size);
    m_dates = new QComboBox;
    const QDateTime example = QDateTime::currentDateTime();
    const std::array<std::pair<TableDates::Format, QString>, 3> formats{
        {{TableDates::Format::System, tr("As the system’s settings have it: %1")},
         {TableDates::Format::Iso, tr("Year, month, day: %1")},
         {TableDates::Format::Named, tr("Month by name: %1")}}};
    for (const auto &[format, title] : formats)
        m_dates->addItem(title.arg(TableDates::text(example, format)), TableDates::nameOf(format));
    form->addRow(tr("D&ates:"), m_dates);
    form->addRow(QString(),
                 makeHint(tr("These are for the tables of all windows. Reports, exported lists and the "
                             "command line stay as they are.")));
    connect(m_usesSystemFont, &QCheckBox::clicked, this, &PreferencesWindow::storeFont);
    connect(m_family, &QFontComboBox::currentFontChanged, this, &PreferencesWindow::storeFont);
    connect(m_size, &QSpinBox::valueChanged, this, &PreferencesWindow::storeFont);
    connect(m_dates, &QComboBox::activated, this, [this](int index) {
        const QString name = m_dates->itemData(index).toString();
        m_defaults.setValue(TableDates::formatKey, name.isEmpty() ? QVariant() : QVariant(name));
    });
    return pageWith(form);
}

QWidget *PreferencesWindow::makeHelpPage()
{
    auto *const form = new QFormLayout;
    form->addRow(
        makeHint(tr("The addresses of the pages that the Help menu opens, for a site with pages of its "
                    "own. An empty field stands for the standard address. The first %@ in an address "
                    "becomes “halvex”, the second “vantrell”.")));
    const std::array<std::pair<WebPage, QString>, addressCount> pages{
        {{WebPage::HalvexHome, tr("Halve&x home page:")},
         {WebPage::QVHome, tr("&Orvandel home page:")},
         {WebPage::Support, tr("&Support:")},
         {WebPage::ReportBug, tr("Report a &bug:")},
         {WebPage::SuggestFeature, tr("Suggest a &feature:")}}};
    const QVariantMap standard = defaultWebAddresses();
    for (const auto &[page, title] : pages) {
        auto *const field = new QLineEdit;
        field->setPlaceholderText(standard.value(webAddressKey(page)).toString());
        field->setMinimumWidth(field->fontMetrics().averageCharWidth() * hintWidth * 3 / 4);
        connect(field, &QLineEdit::editingFinished, this, &PreferencesWindow::storeAddresses);
        form->addRow(title, field);
        m_addresses[std::size_t(page)] = field;
    }
    return pageWith(form);
}

void PreferencesWindow::showSettings()
{
    const QScopedValueRollback<bool> shows(m_isShowing, true);
    m_showsOpenDialog->setChecked(m_defaults.integer(PreferenceKey::showOpenDialog) == 1);
    m_ownOwners->setChecked(m_defaults.boolean(MarkerInventory::ownOwnersDefault));
    m_keepsJournal->setChecked(m_defaults.boolean(PreferenceKey::journal));

    const QString language = m_defaults.string(Translations::languageKey);
    m_language->setCurrentIndex(std::max(0, m_language->findData(language)));

    const QString family = m_defaults.string(TableFont::familyKey);
    const qint64 size = m_defaults.integer(TableFont::sizeKey);
    const QFont system = QApplication::font();
    const bool isSystem = family.isEmpty() && size <= 0;
    m_usesSystemFont->setChecked(isSystem);
    m_family->setCurrentFont(family.isEmpty() ? system : QFont(family));
    m_size->setValue(size > 0 ? int(size) : system.pointSize());
    m_family->setEnabled(!isSystem);
    m_size->setEnabled(!isSystem);
    m_dates->setCurrentIndex(m_dates->findData(TableDates::nameOf(TableDates::storedFormat(m_defaults))));

    const QVariantMap standard = defaultWebAddresses();
    for (std::size_t page = 0; page < addressCount; ++page) {
        const QString key = webAddressKey(WebPage(page));
        const QString address = m_defaults.string(key);
        const QString shown = address == standard.value(key).toString() ? QString() : address;
        if (m_addresses[page]->text() != shown && !m_addresses[page]->isModified())
            m_addresses[page]->setText(shown);
    }
}

void PreferencesWindow::storeFont()
{
    if (m_isShowing)
        return;
    const bool isSystem = m_usesSystemFont->isChecked();
    m_defaults.setValues(
        {{TableFont::familyKey, isSystem ? QVariant() : QVariant(m_family->currentFont().family())},
         {TableFont::sizeKey, isSystem ? QVariant() : QVariant(m_size->value())}});
    showSettings();
}

void PreferencesWindow::storeAddresses()
{
    const QVariantMap standard = defaultWebAddresses();
    QVariantMap changed;
    for (std::size_t page = 0; page < addressCount; ++page) {
        QLineEdit *const field = m_addresses[page];
        if (!field->isModified())
            continue;
        field->setModified(false);
        const QString key = webAddressKey(WebPage(page));
        const QString address = field->text().trimmed();
        const bool isStandard = address.isEmpty() || address == standard.value(key).toString();
        changed.insert(key, isStandard ? QVariant() : QVariant(address));
    }
    if (!changed.isEmpty())
        m_defaults.setValues(changed);
    showSettings();
}

void PreferencesWindow::restoreDefaults()
{
    QVariantMap removed;
    for (const QString &key :
         {PreferenceKey::showOpenDialog, MarkerInventory::ownOwnersDefault, PreferenceKey::journal,
          Translations::languageKey, TableFont::familyKey, TableFont::sizeKey, TableDates::formatKey})
        removed.insert(key, QVariant());
    for (std::size_t page = 0; page < addressCount; ++page) {
        m_addresses[page]->setModified(false);
        removed.insert(webAddressKey(WebPage(page)), QVariant());
    }
    m_defaults.setValues(removed);
    showSettings();
}

/// What is being typed counts.
void PreferencesWindow::hideEvent(QHideEvent *event)
{
    storeAddresses();
    QDialog::hideEvent(event);
}

} // namespace vantrell

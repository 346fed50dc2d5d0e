#pragma once

#include <QDialog>

#include <array>

class QCheckBox;
class QComboBox;
class QFontComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace vantrell
{

class UserDefaults;

/// The preferences. Each change is stored in the user defaults at once, from which all windows take it; what
/// is changed elsewhere shows here. Main thread.
class PreferencesWindow final : public QDialog
{
    Q_OBJECT

public:
    /// The defaults outlive the window.
    explicit PreferencesWindow(UserDefaults &defaults);

public Q_SLOTS:
    /// Removes the settings of all pages, so that the standard ones hold.
    void restoreDefaults();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makeGeneralPage();
    void addLanguage(QFormLayout &form);
    QWidget *makeTablesPage();
    QWidget *makeHelpPage();
    QCheckBox *addSwitch(QFormLayout &form, const QString &subject, const QString &title,
                         const QString &hint);
    void showSettings();
    void storeFont();
    void storeAddresses();

    static constexpr std::size_t addressCount = 5;

    UserDefaults &m_defaults;
    bool m_isShowing = false; ///< settings that were stored before
    QCheckBox *m_showsOpenDialog = nullptr;
    QCheckBox *m_ownOwners = nullptr;
    QCheckBox *m_keepsJournal = nullptr;
    QCheckBox *m_usesSystemFont = nullptr;
    QFontComboBox *m_family = nullptr;
    QSpinBox *m_size = nullptr;
    QComboBox *m_language = nullptr; ///< the data of its items are codes, empty for the system's
    QComboBox *m_dates = nullptr;
    std::array<QLineEdit *, addressCount> m_addresses = {}; ///< by WebPage
};

} // namespace vantrell

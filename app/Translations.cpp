#include "app/Translations.h"

#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

static void registerTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace vantrell::Translations
{

namespace
{

const QString english = QStringLiteral("en");

/// Qt's translations without the reasons why files, programs and sockets failed: the log has these too.
class DialogTranslator final : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override
    {
        static constexpr std::array ofDialogs{"QAbstractSpinBox",
                                              "QApplication",
                                              "QColorDialog",
                                              "QComboBox",
                                              "QDialog",
                                              "QDialogButtonBox",
                                              "QDockWidget",
                                              "QErrorMessage",
                                              "QFileDialog",
                                              "QFileSystemModel",
                                              "QFontDatabase",
                                              "QFontDialog",
                                              "QGnomeTheme",
                                              "QInputDialog",
                                              "QKeySequenceEdit",
                                              "QLineEdit",
                                              "QMessageBox",
                                              "QPageSize",
                                              "QPlatformTheme",
                                              "QPrintDialog",
                                              "QProgressDialog",
                                              "QScrollBar",
                                              "QShortcut",
                                              "QTabBar",
                                              "QUnicodeControlCharacterMenu",
                                              "QWidgetTextControl"};
        const bool isOfDialog = std::any_of(ofDialogs.begin(), ofDialogs.end(), [context](const char *known) {
            return std::strcmp(known, context) == 0;
        });
        return isOfDialog ? QTranslator::translate(context, source, disambiguation, n) : QString();
    }
};

} // namespace

const std::vector<Language> &languages()
{
    static const std::vector<Language> languages{{english, QStringLiteral("English")},
                                                 {QStringLiteral("de"), QStringLiteral("Deutsch")},
                                                 {QStringLiteral("fr"), QStringLiteral("Français")},
                                                 {QStringLiteral("es"), QStringLiteral("Español")}};
    return languages;
}

QString chosen(const QString &wanted, const QStringList &systemLanguages)
{
    for (const QString &name : QStringList(wanted) + systemLanguages) {
        const QString code = name.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
        for (const Language &language : languages()) {
            if (language.code == code)
                return code;
        }
    }
    return english;
}

bool install(QCoreApplication &application, const QString &code)
{
    if (code == english)
        return true;
    registerTranslations();
    auto own = std::make_unique<QTranslator>(&application);
    if (!own->load(QStringLiteral(":/translations/vantrell_%1.qm").arg(code)) ||
        !QCoreApplication::installTranslator(own.get())) {
        QVLog::appendLog(u"The translation into \"%@\" cannot be loaded; windows are in English.", code);
        return false;
    }
    own.release(); // the application's
    auto dialogs = std::make_unique<DialogTranslator>(&application);
    if (dialogs->load(QStringLiteral("qtbase_") + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
        QCoreApplication::installTranslator(dialogs.get()))
        dialogs.release();
    else
        QVLog::appendLog(u"There is no translation of Qt's dialogs into \"%@\" (qt6-translations-l10n).",
                         code);
    return true;
}

void installChosen(QCoreApplication &application, const UserDefaults &defaults)
{
    install(application, chosen(defaults.string(languageKey), QLocale::system().uiLanguages()));
}

} // namespace vantrell::Translations

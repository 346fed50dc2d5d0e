#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class QCoreApplication;

namespace vantrell
{

class UserDefaults;

/// The languages of the windows. The command line, the log and all files are in English whatever is chosen.
namespace Translations
{

struct Language {
    QString code; ///< of ISO 639, such as "de"
    QString name; ///< in the language itself
};

/// The user default: a code; absent for the system's language.
inline const QString languageKey = QStringLiteral("language");

/// English, whose texts are those of the code, and the ones that it is translated into.
const std::vector<Language> &languages();

/// The code of the wanted language; without one that is known, of the first of the system's languages (such
/// as "de-AT", the preferred one first) that is; else "en".
QString chosen(const QString &wanted, const QStringList &systemLanguages);

/// Installs the translations of the program and, where they are on this machine, those of Qt's own dialogs.
/// What is missing stays English, and a line in the log tells so. Before the first window; false when the
/// program has no translation into the language.
bool install(QCoreApplication &application, const QString &code);

/// Installs the language that the user, or else the system, wants.
void installChosen(QCoreApplication &application, const UserDefaults &defaults);

} // namespace Translations

} // namespace vantrell

#pragma once

#include <QString>

namespace vantrell
{

/// How well the name of a file on disk agrees with the one in a project, from best to worst.
enum class NameMatch {
    Same,
    UnicodeForm, ///< alike but for composed and decomposed characters
    Case,        ///< alike but for case, too
    Escapes,     ///< alike once percent escapes are decoded, too
    None,
};

/// Names of files, compared with less and less care. Any thread.
namespace FileNames
{

/// What all names have in common that agree in any way: decoded, composed and without case.
QString relaxed(const QString &name);

NameMatch match(const QString &wanted, const QString &found);

/// How well names agree, in words such as "other case"; null for None.
QString textOf(NameMatch match);

/// The file name and the whole path that a project's URL stands for, also when the text is no valid URL or a
/// path with drive letter and backslashes.
QString pathOfReference(const QString &url);

/// A file URL of an absolute path in the form of another one: with or without "localhost".
QString urlOfPath(const QString &path, const QString &formerUrl);

} // namespace FileNames

} // namespace vantrell

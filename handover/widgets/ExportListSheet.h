#pragma once

#include "handover/MediaListChoice.h"

#include <QDialog>
#include <QStringList>

class QComboBox;
class QLabel;

namespace vantrell
{

/// The sheet that asks for the form and the contents of a list of media files, and then for its file. Deletes
/// itself when closed. Main thread.
class ExportListSheet final : public QDialog
{
    Q_OBJECT

public:
    /// The titles of the sequence menu, whose first item is no sequence. The list gets the title as its
    /// proposed name, in the folder.
    ExportListSheet(const QStringList &sequences, const QString &fileTitle, const QString &folder,
                    QWidget *window);

    MediaListFormat format() const;
    MediaListScope scope() const;

Q_SIGNALS:
    /// The user has chosen a file; the sheet has closed.
    void chosen(const QString &path, vantrell::MediaListFormat format, const vantrell::MediaListScope &scope);

private:
    void showHint();
    void askForFile();

    const QString m_fileTitle;
    const QString m_folder;
    QComboBox *m_format;
    QComboBox *m_scope;
    QLabel *m_hint;
};

} // namespace vantrell

#pragma once

#include "interchange/NoteExporter.h"
#include "rows/RowRecord.h"

#include <QDialog>
#include <QHash>
#include <QStringList>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace vantrell
{

class MyDocument;

/// The sheet that asks for the format, the markers and the columns of a list of notes, and then for its file.
/// Deletes itself when closed. Main thread; the document outlives the sheet.
class ExportNotesSheet final : public QDialog
{
    Q_OBJECT

public:
    /// What the user may export besides all markers.
    struct Markers {
        RowList selected;
        RowList shown;
    };
    /// The titles of custom fields by their titles in lists.
    using FieldTitles = QHash<QString, QString>;
    /// `fileTitle` begins the proposed name of the file, in the given folder.
    ExportNotesSheet(MyDocument &document, Markers markers, const FieldTitles &fields,
                     const QString &fileTitle, const QString &folder, QWidget *window);

    /// A format of NoteWriter, or "json" for MarkerJson.
    QString format() const;
    /// The chosen ones that pass the filters, in their order.
    RowList markers() const;
    /// The titles of the chosen columns; empty for all, and for a format without columns to choose.
    QStringList columns() const;

    static QString extensionOf(const QString &format);

Q_SIGNALS:
    /// The user has chosen a file; the sheet is hidden.
    void chosen(const QString &path);

private:
    void fillFormats();
    void fillMarkers();
    QWidget *makeFilters();
    QWidget *makeColumns(const FieldTitles &fields);
    void countMarkers();
    void updateColumns();
    void askForFile();

    MyDocument &m_document;
    const NoteExporter m_exporter;
    const Markers m_markers;
    const QString m_fileTitle;
    const QString m_folder;
    QComboBox *m_format;
    QComboBox *m_which;
    QComboBox *m_color;
    QComboBox *m_sequence;
    QComboBox *m_flag;
    QLineEdit *m_search;
    QListWidget *m_columns;
    QWidget *m_columnsBox = nullptr;
    QLabel *m_count;
    QPushButton *m_export = nullptr;
};

} // namespace vantrell

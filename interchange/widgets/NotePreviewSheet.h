#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vantrell
{

class NotePreview;
class NotePreviewModel;
class QVTableView;

/// The sheet that shows what an import of notes would add, and how the list is understood. Every setting
/// takes effect at once. Deletes itself when closed. Main thread.
class NotePreviewSheet final : public QDialog
{
    Q_OBJECT

public:
    /// The preview becomes the sheet's.
    NotePreviewSheet(NotePreview *preview, QWidget *window);

    NotePreview &preview() const { return *m_preview; }

Q_SIGNALS:
    /// The user wants the checked rows, of which there is at least one; the sheet is hidden, and to be
    /// deleted.
    void chosen();

private:
    QWidget *makeSettings();
    QWidget *makeTable();
    QWidget *makeButtons();
    void fillMeanings();
    void fillRates();
    bool eventFilter(QObject *object, QEvent *event) override;
    void meaningChosen();
    void timecodeTyped();
    void takePlan();
    void showColumns();
    void showChecks();
    void toggleSelected();
    void checkAll(bool isChecked);
    void add();

    NotePreview *m_preview;
    NotePreviewModel *m_model;
    QLabel *m_description;
    QComboBox *m_sequence;
    QComboBox *m_meaning;
    QLineEdit *m_timecode;
    QComboBox *m_rate;
    QVTableView *m_table;
    QCheckBox *m_all;
    QLabel *m_summary;
    QPushButton *m_add = nullptr;
    bool m_addsWhenPlanned = false;
    bool m_isStepping = false; // by a key that goes to the closed list of meanings
};

} // namespace vantrell

#pragma once

#include "rows/RowRecord.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vantrell
{

/// The sheet that asks for a timecode to go to, and tells which of the rows of the marker table is nearest.
class GoToTimecodeSheet : public QDialog
{
    Q_OBJECT

public:
    /// There are rows; in the sequence of that one it begins.
    GoToTimecodeSheet(RowList rows, const RowRecordPtr &current, QWidget *parent);

    /// The marker to go to; null before a timecode is typed.
    RowRecordPtr marker() const { return m_marker; }

private:
    void fillSequences(const RowRecordPtr &current);
    void look();

    RowList m_rows;
    RowList m_examples; // a row of each sequence, by item
    RowRecordPtr m_marker;
    QLineEdit *m_timecode;
    QComboBox *m_sequences;
    QLabel *m_hint;
    QPushButton *m_go;
};

} // namespace vantrell

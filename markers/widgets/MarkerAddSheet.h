#pragma once

#include "document/Menu.h"
#include "markers/MarkerEditor.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vantrell
{

/// Asks where a marker is to be added, and for its texts and colour. Tells below the timecodes what they are
/// read as. Opened with open().
class MarkerAddSheet : public QDialog
{
    Q_OBJECT

public:
    /// The item of the sequence menu that is chosen at first, the name that the marker gets if the user does
    /// not change it, and the labels of the colours.
    MarkerAddSheet(MenuPtr sequences, std::int64_t item, const QString &name, const QStringList &colorLabels,
                   QWidget *parent);

    /// The chosen item of the sequence menu.
    std::int64_t sequence() const;
    MarkerEditor::NewMarker marker() const;

private:
    XmlNode sequenceElement() const;
    void sequenceChosen();
    void follow();

    MenuPtr m_sequences;
    QComboBox *m_sequence;
    QLineEdit *m_in;
    QLabel *m_inNote;
    QLineEdit *m_duration;
    QLabel *m_durationNote;
    QLineEdit *m_name;
    QLineEdit *m_comment;
    QComboBox *m_color;
};

} // namespace vantrell

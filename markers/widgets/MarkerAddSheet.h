#pragma once

#include "document/Menu.h"
#include "markers/MarkerEditor.h"

#include <QDialog>

#include <cstdint>

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
    /// What is there at first.
    struct Start {
        std::int64_t item = 1; ///< of the sequence menu
        QString timecode;      ///< in that sequence; empty for its first one
    };

    /// `name` is what the marker is called if the user does not change it; the labels are those of the
    /// colours.
    MarkerAddSheet(MenuPtr sequences, Start start, const QString &name, const QStringList &colorLabels,
                   QWidget *parent);

    /// The chosen item of the sequence menu.
    std::int64_t sequence() const;
    MarkerEditor::NewMarker marker() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    XmlNode sequenceElement() const;
    void sequenceChosen();
    void follow();
    void makeRoomForNotes();

    MenuPtr m_sequences;
    Start m_start;
    QComboBox *m_sequence;
    QLineEdit *m_in;
    QLabel *m_inNote;
    QLineEdit *m_duration;
    QLabel *m_durationNote;
    QLineEdit *m_name;
    QLineEdit *m_comment;
    QComboBox *m_color;
    QPushButton *m_add = nullptr;
};

} // namespace vantrell

#pragma once

#include <QDialog>

class QLineEdit;

namespace vantrell
{

/// Asks for the offset of the selected markers: frames, or a timecode. Opened with open().
class MarkerOffsetSheet : public QDialog
{
    Q_OBJECT

public:
    explicit MarkerOffsetSheet(QWidget *parent = nullptr);

    QString text() const;

private:
    QLineEdit *m_markerOffsetText;
};

} // namespace vantrell

#pragma once

#include "markers/TimecodeEntry.h"

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;

namespace vantrell
{

/// Asks for the offset of the selected markers: frames, or a timecode. Tells at which rate that counts, and
/// what becomes of the first marker. Opened with open().
class MarkerOffsetSheet : public QDialog
{
    Q_OBJECT

public:
    using Preview = std::function<TimecodeEntry::Reading(const QString &typed)>;

    MarkerOffsetSheet(const QString &rate, Preview preview, QWidget *parent = nullptr);

    QString text() const;

private:
    void follow(const QString &typed);

    Preview m_preview;
    QLineEdit *m_markerOffsetText;
    QLabel *m_result;
};

} // namespace vantrell

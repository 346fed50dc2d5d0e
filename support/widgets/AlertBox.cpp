#include "support/widgets/AlertBox.h"

#include "support/widgets/GoBack.h"
#include "support/widgets/SelectableLabel.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTextDocument>

#include <utility>

namespace vantrell
{

namespace
{

constexpr QChar wordJoiner(0x2060);
constexpr QChar ellipsis(0x2026);
constexpr int minimumWidth = 380;     // pixels, of the texts
constexpr int maximumWordWidth = 376; // pixels; fits into each line

/// The text with its paths and file names kept on one line each, and those and words of more pixels elided in
/// the middle. A path with blanks is one in quotation marks or with an extension at its end, a file name with
/// blanks is both.
QString fitted(const QString &text, const QFontMetrics &metrics, int width)
{
    static const QRegularExpression words(
        QStringLiteral("(?<=[\"“„«])\u00a0?(?:/[^\"”“»\n]+|[^\"”“»\n]*\\.\\w{1,8})\u00a0?(?=[\"”“»])"
                       "|(?<![^\\s\"“„«])/(?:[^/\n]+/)+[^/\n]*?\\.[A-Za-z]\\w{0,7}(?!\\w)"
                       "|[^\\s\"“„«]+"));
    QString result;
    qsizetype end = 0;
    for (auto match = words.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch word = match.next();
        QString shown = metrics.elidedText(word.captured(), Qt::ElideMiddle, width);
        // A line could be broken behind these.
        QList<QChar> breaks;
        if (shown != word.captured())
            breaks.append(ellipsis);
        if (shown.count(QLatin1Char('/')) > 1)
            breaks.append({QLatin1Char('/'), QLatin1Char('-')});
        for (const QChar character : std::as_const(breaks))
            shown.replace(character, QString(character) + wordJoiner);
        shown.replace(QLatin1Char(' '), QChar::Nbsp);
        result += text.mid(end, word.capturedStart() - end) + shown;
        end = word.capturedEnd();
    }
    return result + text.mid(end);
}

/// Copies texts as they are, not as they are shown: what is selected in a label, else all.
class CopiesTexts final : public QObject
{
public:
    CopiesTexts(QObject *parent, const QString &texts)
        : QObject(parent)
        , m_texts(texts)
    {
        parent->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress ||
            !static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy))
            return false;
        QString copied = m_texts;
        if (const auto *const label = qobject_cast<QLabel *>(object)) {
            QString selected = selectedTextOf(*label).remove(wordJoiner);
            if (!m_texts.contains(QChar::Nbsp))
                selected.replace(QChar::Nbsp, QLatin1Char(' '));
            if (!selected.isEmpty() && (!selected.contains(ellipsis) || m_texts.contains(ellipsis)))
                copied = selected;
        }
        QGuiApplication::clipboard()->setText(copied);
        return true;
    }

private:
    QString m_texts;
};

void setText(QLabel &label, const QString &text)
{
    label.setMinimumWidth(minimumWidth);
    setTextWithPaths(label, text, maximumWordWidth);
}

/// Whether the active window is neither the box nor one that the box is a sheet of.
bool isUserElsewhere(const QMessageBox &box)
{
    const QWidget *const active = QApplication::activeWindow();
    const QWidget *own = &box;
    while (own && own != active)
        own = own->parentWidget();
    return active && !own;
}

void setIcon(QMessageBox &box)
{
    constexpr int side = 48;
    const QIcon icon = QGuiApplication::windowIcon();
    if (icon.isNull())
        box.setIcon(QMessageBox::Warning);
    else
        box.setIconPixmap(icon.pixmap(QSize(side, side), box.devicePixelRatio()));
}

} // namespace

void setTextWithPaths(QLabel &label, const QString &text, int width)
{
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    makeSelectable(label);
    const QString shown = fitted(text, QFontMetrics(label.font()), width);
    label.setText(shown);
    const bool isElided = shown.contains(ellipsis) && !text.contains(ellipsis);
    label.setToolTip(isElided ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : QString());
    new CopiesTexts(&label, text);
}

void setMessageText(QLabel &label, const QString &message)
{
    QFont bold = label.font();
    bold.setBold(true);
    label.setFont(bold);
    setText(label, message);
}

void setExplanationText(QLabel &label, const QString &explanation)
{
    setText(label, explanation);
}

void setUpAlert(QMessageBox &box, const QString &message, const QString &explanation)
{
    box.setWindowTitle(QCoreApplication::applicationName());
    box.setWindowModality(box.parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    if (QWidget *const window = box.parentWidget())
        QObject::connect(&box, &QDialog::finished, window, [&box, window] {
            if (!isUserElsewhere(box))
                goBackTo(*window->window());
        });
    setIcon(box);
    new CopiesTexts(&box, message + QLatin1Char('\n') + explanation);
    box.setTextFormat(Qt::PlainText);
    box.setText(message);
    box.setInformativeText(explanation);
    for (QLabel *const label : box.findChildren<QLabel *>()) {
        const QString text = label->text();
        if (text.isEmpty())
            continue;
        if (text == message) {
            setMessageText(*label, text);
            // The box wraps a message that is too wide by what the label asks for.
            if (label->fontMetrics().size(0, label->text()).width() > minimumWidth)
                label->setMinimumWidth(0);
        } else {
            setExplanationText(*label, text);
        }
    }
}

} // namespace vantrell

#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QVariantMap>
#include <QWidget>

namespace vantrell
{

/// The pane that a program adds to the print panel. It makes the panel redraw its preview by changing a
/// property that the preview depends on. Main thread.
class QVPrintViewController final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dummyValue READ dummyValue NOTIFY dummyValueChanged)

public:
    /// A new controller that shows the view but does not own it.
    static QVPrintViewController *printViewControllerWithView(QWidget *view, QObject *parent = nullptr);

    QWidget *view() const { return m_view; }

    /// The delegate; may be null.
    QObject *delegate() const { return m_delegate; }
    void setDelegate(QObject *delegate) { m_delegate = delegate; }

    /// Makes the panel redraw its preview, then dispatches pending events.
    void updatePreview();

    bool dummyValue() const { return m_dummyValue; }
    static QSet<QString> keyPathsForValuesAffectingPreview() { return {QStringLiteral("dummyValue")}; }
    /// The summary of the pane's settings: one empty item.
    static QList<QVariantMap> localizedSummaryItems() { return {QVariantMap()}; }

Q_SIGNALS:
    void dummyValueChanged();

private:
    using QObject::QObject;

    QPointer<QWidget> m_view;
    QPointer<QObject> m_delegate;
    bool m_dummyValue = false;
};

} // namespace vantrell

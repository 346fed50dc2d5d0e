#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QVariantMap>
#include <QWidget>

namespace vantrell
{

/// The pane that a program adds to the print panel, and how it has the panel draw its preview anew: by
/// changing a property that the preview depends on. Main thread.
class QVPrintViewController final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dummyValue READ dummyValue NOTIFY dummyValueChanged)

public:
    /// A new controller that shows the view, which somebody else owns.
    static QVPrintViewController *printViewControllerWithView(QWidget *view, QObject *parent = nullptr);

    QWidget *view() const { return m_view; }

    /// Whom the pane works for; null for nobody.
    QObject *delegate() const { return m_delegate; }
    void setDelegate(QObject *delegate) { m_delegate = delegate; }

    /// Has the panel draw its preview, then lets the program do what is due.
    void updatePreview();

    bool dummyValue() const { return m_dummyValue; }
    static QSet<QString> keyPathsForValuesAffectingPreview() { return {QStringLiteral("dummyValue")}; }
    /// What the pane's settings are called in a summary: one item without a name.
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

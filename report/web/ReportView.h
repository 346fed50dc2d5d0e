#pragma once

#include "report/widgets/WebView.h"

#include <QObject>
#include <QPageLayout>
#include <QPointer>
#include <QTemporaryDir>

class QWebEngineView;

namespace vantrell
{

class ReportPage;

/// The web view of the plug-in: a report page in a widget. Main thread, after WebEngine::prepare().
class ReportView final : public QObject, public WebView
{
    Q_OBJECT

public:
    explicit ReportView(const QString &imageFolder);
    ~ReportView() override;

    QWidget *widget() override;
    void load(const QString &html, Loaded loaded) override;
    void replaceBody(const QString &script, std::function<void()> replaced) override;
    void run(const QString &script, std::function<void(const QVariant &)> use) override;
    void setPaper(const QPageLayout &paper) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makePage();
    void loadEnded(bool isLoaded);
    void fitToPaper();
    void processEnded();

    const QString m_imageFolder;
    QTemporaryDir m_folder; // of the page's file
    int m_file = 0;
    QPointer<QWebEngineView> m_view;
    QPointer<ReportPage> m_page;
    Loaded m_loaded;
    QString m_bodyScript; // replaced the body since the last load
    QPageLayout m_paper;
};

} // namespace vantrell

#pragma once

#include <QString>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace vantrell
{

/// Allows a page to load its own document, as its main frame only, and the pictures of one folder; blocks all
/// other files and the network. Main thread.
class RequestFilter final : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT

public:
    /// Allows the PNG files directly in the folder, an absolute path.
    explicit RequestFilter(const QString &imageFolder, QObject *parent = nullptr);

    /// Sets the document that may be loaded.
    void setDocument(const QUrl &document) { m_document = document; }

    bool isOwnImage(const QUrl &url) const;
    void interceptRequest(QWebEngineUrlRequestInfo &request) override;

private:
    QString m_imageFolder;
    QUrl m_document;
};

} // namespace vantrell

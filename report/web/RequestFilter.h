#pragma once

#include <QString>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace vantrell
{

/// Lets a page have its own text and the pictures of one folder, and nothing else: no host, no other file,
/// and the text only as what the page itself shows. Main thread.
class RequestFilter final : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT

public:
    /// PNG files directly in the folder, an absolute path.
    explicit RequestFilter(const QString &imageFolder, QObject *parent = nullptr);

    /// The file that the page shows from now on.
    void setDocument(const QUrl &document) { m_document = document; }

    bool isOwnImage(const QUrl &url) const;
    void interceptRequest(QWebEngineUrlRequestInfo &request) override;

private:
    QString m_imageFolder;
    QUrl m_document;
};

} // namespace vantrell

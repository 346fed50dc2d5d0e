#include "report/web/RequestFilter.h"

#include <QDir>

namespace vantrell
{

RequestFilter::RequestFilter(const QString &imageFolder, QObject *parent)
    : QWebEngineUrlRequestInterceptor(parent)
    , m_imageFolder(QDir::cleanPath(imageFolder))
{
}

bool RequestFilter::isOwnImage(const QUrl &url) const
{
    const QString path = url.path(QUrl::FullyDecoded);
    const qsizetype name = path.lastIndexOf(u'/') + 1;
    return url.isLocalFile() && url.host().isEmpty() && path.endsWith(QStringLiteral(".png")) &&
           path.left(name - 1) == m_imageFolder;
}

void RequestFilter::interceptRequest(QWebEngineUrlRequestInfo &request)
{
    const bool isAllowed = request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame
                               ? request.requestUrl() == m_document
                               : request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeImage &&
                                     isOwnImage(request.requestUrl());
    if (!isAllowed || request.requestMethod() != QByteArrayLiteral("GET"))
        request.block(true);
}

} // namespace vantrell

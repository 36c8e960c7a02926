#include "app/window/DroppedPaths.h"

#include <QMimeData>
#include <QUrl>

std::vector<std::string> PathsOfDrag(const QMimeData& data)
{
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        if (!url.isLocalFile())
            continue;
        // QUrl::toLocalFile would decode the bytes to text, and lose those that are none.
        const QByteArray encoded = url.path(QUrl::FullyEncoded).toLatin1();
        paths.push_back(QByteArray::fromPercentEncoding(encoded).toStdString());
    }
    return paths;
}

#include "app/window/DocumentIcon.h"

#include "dicom_core/opening/RecentDocuments.h"

#include <QApplication>
#include <QFile>
#include <QFileIconProvider>
#include <QStyle>

QIcon DocumentIcon(const ZELRecentDocument& document)
{
    const std::string_view name = document.menuImage().name;
    if (name.empty())
        return QFileIconProvider().icon(QFileInfo(QFile::decodeName(document.docPath.c_str())));
    const QString text = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    const QString file = QStringLiteral(":/icons/%1.svg").arg(text);
    if (QFile::exists(file))
        return QIcon(file);
    return QIcon::fromTheme(text, QApplication::style()->standardIcon(QStyle::SP_DriveCDIcon));
}

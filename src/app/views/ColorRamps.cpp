#include "app/views/ColorRamps.h"

#include "prefs/PrefsTables.h"

#include <algorithm>
#include <map>

namespace {

constexpr int kWidth = 256, kHeight = 32;
const QString kPrefix = QStringLiteral("color_table_");

QImage U_NSImageForCLUTItem(int table)
{
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    picture.fill(Qt::black);
    if (const ZELColorRamp* ramp = prefs_GetColorRamp(table)) {
        for (int y = 0; y < kHeight; ++y)
            std::ranges::copy(*ramp, reinterpret_cast<QRgb*>(picture.scanLine(y)));
    }
    return picture;
}

}  // namespace

const QImage& colorRampImage(int table)
{
    static std::map<int, QImage> pictures;
    auto found = pictures.find(table);
    if (found == pictures.end())
        found = pictures.emplace(table, U_NSImageForCLUTItem(table)).first;
    return found->second;
}

QString ImageOfColorTable(int table) { return kPrefix + QString::number(table); }

int ColorTableOfImage(const QString& image)
{
    return image.startsWith(kPrefix) ? image.mid(kPrefix.size()).toInt() : 0;
}

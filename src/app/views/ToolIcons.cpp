#include "app/views/ToolIcons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

QColor ColorOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                         QPalette::ButtonText);
}

class ToolIconEngine final : public QIconEngine {
public:
    explicit ToolIconEngine(QString name) : fName(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(rect, drawn(rect.size() * ratio, mode, state));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return drawn(size, mode, state);
    }
    QIconEngine* clone() const override { return new ToolIconEngine(*this); }

private:
    // `size` in device pixels.
    [[nodiscard]] QPixmap drawn(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) const
    {
        const QString color = ColorOf(mode).name();
        const QString key = QStringLiteral("tool:%1:%2:%3x%4")
                                .arg(fName, color)
                                .arg(size.width())
                                .arg(size.height());
        QPixmap picture;
        if (QPixmapCache::find(key, &picture))
            return picture;
        picture = QPixmap(size);
        picture.fill(Qt::transparent);
        QFile file(QStringLiteral(":/icons/%1.svg").arg(fName));
        if (file.open(QIODevice::ReadOnly)) {
            QSvgRenderer drawing(file.readAll().replace("currentColor", color.toLatin1()));
            QPainter painter(&picture);
            drawing.render(&painter, QRectF(QPointF(), QSizeF(size)));
        }
        QPixmapCache::insert(key, picture);
        return picture;
    }

    QString fName;
};

}  // namespace

QIcon ToolIcon(const QString& name) { return QIcon(new ToolIconEngine(name)); }

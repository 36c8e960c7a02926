#include "app_prefs/PrefsControls.h"

#include "app_prefs/PrefsWords.h"

#include <QColorDialog>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

constexpr QSize kSwatch{44, 16};  // points

// Where the color is see-through, a check shows behind it.
QPixmap SwatchOf(const QColor& color, const QPalette& palette, qreal scale)
{
    QPixmap picture(kSwatch * scale);
    picture.setDevicePixelRatio(scale);
    QPainter painter(&picture);
    const QRectF area(QPointF(0, 0), kSwatch);
    painter.fillRect(area, Qt::white);
    painter.fillRect(area, QBrush(Qt::gray, Qt::Dense4Pattern));
    painter.fillRect(area, color);
    painter.setPen(palette.color(QPalette::ButtonText));
    painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
    return picture;
}

}  // namespace

ColorButton::ColorButton(const ColorSetting& setting, QWidget* parent)
    : QPushButton(parent), _setting(&setting)
{
    setIconSize(kSwatch);
    setToolTip(PrefsTip(setting.title));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QPushButton::clicked, this, &ColorButton::openPanel);
    refresh();
}

void ColorButton::refresh()
{
    const QColor color = ColorOf(*_setting);
    setIcon(SwatchOf(color, palette(), devicePixelRatioF()));
    const QString name = color.name(_setting->hasAlpha ? QColor::HexArgb : QColor::HexRgb);
    setAccessibleName(QStringLiteral("%1: %2").arg(PrefsWord(_setting->title), name));
}

void ColorButton::choose(const QColor& color)
{
    ChangeColor(*_setting, color);
    refresh();
}

void ColorButton::openPanel()
{
    // Outside of Linux's portals, the same on every desktop.
    const QColorDialog::ColorDialogOptions options =
        _setting->hasAlpha ? QColorDialog::ShowAlphaChannel : QColorDialog::ColorDialogOptions();
    choose(QColorDialog::getColor(ColorOf(*_setting), this, PrefsWord(_setting->title), options));
}

void ColorButton::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refresh();
}

std::vector<ColorButton*> AddColors(std::span<const ColorSetting> settings, QFormLayout* form)
{
    std::vector<ColorButton*> buttons;
    for (const ColorSetting& setting : settings) {
        buttons.push_back(new ColorButton(setting));
        form->addRow(PrefsWord(setting.title) + QLatin1Char(':'), buttons.back());
    }
    return buttons;
}

std::vector<QCheckBox*> AddFlags(std::span<const FlagSetting> settings, QVBoxLayout* layout)
{
    std::vector<QCheckBox*> boxes;
    for (const FlagSetting& setting : settings) {
        auto* box = new QCheckBox(PrefsWord(setting.title));
        box->setToolTip(PrefsTip(setting.title));
        box->setAccessibleName(PrefsWord(setting.title));
        QObject::connect(box, &QCheckBox::toggled, box,
                         [&setting](bool on) { ChangeFlag(setting, on); });
        layout->addWidget(box);
        boxes.push_back(box);
    }
    RefreshFlags(settings, boxes);
    return boxes;
}

void RefreshFlags(std::span<const FlagSetting> settings, const std::vector<QCheckBox*>& boxes)
{
    for (std::size_t i = 0; i < boxes.size() && i < settings.size(); ++i) {
        const QSignalBlocker quiet(boxes[i]);
        boxes[i]->setChecked(settings[i].get());
    }
}

QGroupBox* AddGroup(const char* title, QVBoxLayout* layout)
{
    auto* group = new QGroupBox(PrefsWord(title));
    layout->addWidget(group);
    return group;
}

QIcon PrefsIcon(const char* name)
{
    return QIcon(QStringLiteral(":/prefs/%1.svg").arg(QLatin1String(name)));
}

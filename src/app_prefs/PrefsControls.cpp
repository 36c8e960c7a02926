#include "app_prefs/PrefsControls.h"

#include "app_prefs/PrefsWords.h"

#include <QColorDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionButton>
#include <QVBoxLayout>

namespace {

constexpr QSize kSwatch{44, 16};  // points

// Where the color is see-through, a check shows behind it.
void DrawSwatch(QPainter& painter, const QRectF& area, const QColor& color, const QColor& edge)
{
    painter.fillRect(area, Qt::white);
    painter.fillRect(area, QBrush(Qt::gray, Qt::Dense4Pattern));
    painter.fillRect(area, color);
    painter.setPen(edge);
    painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace

ColorButton::ColorButton(const ColorSetting& setting, QWidget* parent)
    : QPushButton(parent), _setting(&setting)
{
    setToolTip(PrefsTip(setting.title));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QPushButton::clicked, this, &ColorButton::openPanel);
    refresh();
}

void ColorButton::refresh()
{
    const QColor color = ColorOf(*_setting);
    update();
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

QSize ColorButton::sizeHint() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, kSwatch, this);
}

// Painted and no icon, so that it is sharp on every screen that the window comes to.
void ColorButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const QRect area = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, kSwatch, rect());
    DrawSwatch(painter, area, ColorOf(*_setting), palette().color(QPalette::ButtonText));
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

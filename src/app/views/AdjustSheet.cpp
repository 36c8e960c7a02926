#include "app/views/AdjustSheet.h"

#include "platform/Words.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <cmath>

using Row = BnCDialogController::Row;

namespace {

constexpr int kSliderWidth = 260;  // points

}  // namespace

AdjustSheet::AdjustSheet(GridHost* host, ViewerActions* actions, QWidget* parent)
    : QDialog(parent), _controller(host, actions), _preview(new QCheckBox)
{
    setWindowModality(Qt::WindowModal);
    setWindowTitle(ZelWord(kWordsMenuItems, "Adjust"));
    auto* form = new QFormLayout(this);
    addRow(form, Row::First);
    addRow(form, Row::Second);
    _preview->setText(ZelWord(kWordsMenuItems, "Preview"));
    _preview->setChecked(_controller.previewIsOn());
    connect(_preview, &QCheckBox::toggled, this, [this](bool on) {
        _controller.livePreviewOnOff(on, valueIn(Row::First), valueIn(Row::Second));
    });
    form->addRow(_preview);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

void AdjustSheet::addRow(QFormLayout* form, Row row)
{
    const double minimum = _controller.minimumOf(row), step = _controller.step();
    auto* slider = new QSlider(Qt::Horizontal);
    auto* field = new QDoubleSpinBox;
    const auto steps = [minimum, step](double value) {
        return static_cast<int>(std::lround((value - minimum) / step));
    };
    slider->setMinimumWidth(kSliderWidth);
    slider->setRange(0, steps(_controller.maximumOf(row)));
    field->setDecimals(_controller.decimals());
    field->setSingleStep(step);
    field->setRange(minimum, _controller.maximumOf(row));
    field->setValue(_controller.valueOf(row));
    slider->setValue(steps(_controller.valueOf(row)));
    slider->setAccessibleName(_controller.titleOf(row));
    field->setAccessibleName(_controller.titleOf(row));
    connect(slider, &QSlider::valueChanged, this, [field, steps, minimum, step](int at) {
        if (steps(field->value()) != at)  // else it only follows the field
            field->setValue(minimum + at * step);
    });
    connect(field, &QDoubleSpinBox::valueChanged, this, [this, row, slider, steps](double value) {
        slider->setValue(steps(value));
        _controller.previewImage(row, value);
    });
    _sliders[static_cast<std::size_t>(row)] = slider;
    _fields[static_cast<std::size_t>(row)] = field;
    auto* line = new QHBoxLayout;
    line->addWidget(slider, 1);
    line->addWidget(field);
    form->addRow(_controller.titleOf(row), line);
    auto* explanation = new QLabel(_controller.explanationOf(row));
    explanation->setEnabled(false);
    form->addRow(QString(), explanation);
}

double AdjustSheet::valueIn(Row row) const { return field(row)->value(); }

void AdjustSheet::accept()
{
    QDialog::accept();
    _controller.accept(valueIn(Row::First), valueIn(Row::Second));
}

void AdjustSheet::reject()
{
    QDialog::reject();
    _controller.cancel();
}

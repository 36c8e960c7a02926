#include "app/views/AdjustSheet.h"

#include "platform/Words.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>

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
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

void AdjustSheet::addRow(QFormLayout* form, Row row)
{
    const int minimum = _controller.minimumOf(row), maximum = _controller.maximumOf(row);
    const int value = _controller.valueOf(row);
    auto* slider = new QSlider(Qt::Horizontal);
    auto* field = new QSpinBox;
    slider->setMinimumWidth(kSliderWidth);
    slider->setRange(minimum, maximum);
    field->setRange(minimum, maximum);
    slider->setValue(value);
    field->setValue(value);
    slider->setAccessibleName(_controller.titleOf(row));
    field->setAccessibleName(_controller.titleOf(row));
    connect(slider, &QSlider::valueChanged, field, &QSpinBox::setValue);
    connect(field, &QSpinBox::valueChanged, this, [this, row, slider](int changed) {
        slider->setValue(changed);
        _controller.previewImage(row, changed);
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

int AdjustSheet::valueIn(Row row) const { return field(row)->value(); }

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

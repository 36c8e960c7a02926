// The sheet that adjusts window width and level, or brightness and contrast, by sliders and fields.
#pragma once
#include "app/tools/BnCDialogController.h"

#include <QDialog>
#include <array>

class QCheckBox;
class QDoubleSpinBox;
class QFormLayout;
class QSlider;

class AdjustSheet final : public QDialog {
    Q_OBJECT

public:
    // For the window's active grid, where BnCDialogController::canOpen says so.
    AdjustSheet(GridHost* host, ViewerActions* actions, QWidget* parent);

    // Counts steps from the least value.
    [[nodiscard]] QSlider* slider(BnCDialogController::Row row) const
    {
        return _sliders[static_cast<std::size_t>(row)];
    }
    [[nodiscard]] QDoubleSpinBox* field(BnCDialogController::Row row) const
    {
        return _fields[static_cast<std::size_t>(row)];
    }
    [[nodiscard]] QCheckBox* previewButton() const { return _preview; }

    void accept() override;
    void reject() override;

private:
    void addRow(QFormLayout* form, BnCDialogController::Row row);
    [[nodiscard]] double valueIn(BnCDialogController::Row row) const;

    BnCDialogController _controller;
    std::array<QSlider*, 2> _sliders{};
    std::array<QDoubleSpinBox*, 2> _fields{};
    QCheckBox* _preview;
};

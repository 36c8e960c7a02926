// The sheet that adjusts window width and level, or brightness and contrast, by sliders and fields.
#pragma once
#include "app/tools/BnCDialogController.h"

#include <QDialog>
#include <array>

class QCheckBox;
class QFormLayout;
class QSlider;
class QSpinBox;

class AdjustSheet final : public QDialog {
    Q_OBJECT

public:
    // For the window's active grid, where BnCDialogController::canOpen says so.
    AdjustSheet(GridHost* host, ViewerActions* actions, QWidget* parent);

    [[nodiscard]] QSlider* slider(BnCDialogController::Row row) const
    {
        return _sliders[static_cast<std::size_t>(row)];
    }
    [[nodiscard]] QSpinBox* field(BnCDialogController::Row row) const
    {
        return _fields[static_cast<std::size_t>(row)];
    }
    [[nodiscard]] QCheckBox* previewButton() const { return _preview; }

    void accept() override;
    void reject() override;

private:
    void addRow(QFormLayout* form, BnCDialogController::Row row);
    [[nodiscard]] int valueIn(BnCDialogController::Row row) const;

    BnCDialogController _controller;
    std::array<QSlider*, 2> _sliders{};
    std::array<QSpinBox*, 2> _fields{};
    QCheckBox* _preview;
};

// Asks for a grid's rows and columns, where none of the menu's shapes will do.
#pragma once
#include <QDialog>

class QFormLayout;
class QSpinBox;
class ZELSequenceGridViewModelController;

class GridSetupSheet final : public QDialog {
    Q_OBJECT

public:
    static constexpr int kMost = 10;  // rows, and columns

    // The grid outlives the sheet, and takes what was asked for with OK.
    GridSetupSheet(ZELSequenceGridViewModelController* grid, QWidget* parent);

    void accept() override;

private:
    QSpinBox* addField(QFormLayout* form, const char* label, int value);

    ZELSequenceGridViewModelController* _grid;
    QSpinBox *_rows = nullptr, *_columns = nullptr;
};

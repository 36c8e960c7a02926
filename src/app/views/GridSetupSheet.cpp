#include "app/views/GridSetupSheet.h"

#include "app/grid/ZELSequenceGridViewModelController.h"
#include "platform/Words.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>

GridSetupSheet::GridSetupSheet(ZELSequenceGridViewModelController* grid, QWidget* parent)
    : QDialog(parent), _grid(grid)
{
    setWindowModality(Qt::WindowModal);
    setWindowTitle(ZelWord(kWordsMenuItems, "Image Grid"));
    auto* form = new QFormLayout(this);
    _rows = addField(form, "Rows", grid->viewport().gridRows());
    _columns = addField(form, "Columns", grid->viewport().gridCols());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

QSpinBox* GridSetupSheet::addField(QFormLayout* form, const char* label, int value)
{
    auto* field = new QSpinBox;
    field->setRange(1, kMost);
    field->setValue(value);
    field->setAccessibleName(ZelWord(kWordsMenuItems, label));
    form->addRow(ZelWord(kWordsMenuItems, label), field);
    return field;
}

void GridSetupSheet::accept()
{
    QDialog::accept();
    _grid->setGridRowsTo(_rows->value(), _columns->value(), false);
}

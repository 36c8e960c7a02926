// Sheets: dialogs that block their window. Main thread only.
#pragma once
#include <QDialog>
#include <algorithm>

[[nodiscard]] inline bool HasSheet(const QWidget& window)
{
    return std::ranges::any_of(window.findChildren<QDialog*>(), [](const QDialog* dialog) {
        return dialog->isVisible() && dialog->isModal();
    });
}

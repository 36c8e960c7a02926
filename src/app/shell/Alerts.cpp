#include "app/shell/Alerts.h"

#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

int RunAlert(const ZELAlertWords& words, QWidget* over)
{
    QMessageBox alert(QMessageBox::Warning, QGuiApplication::applicationDisplayName(),
                      words.message, QMessageBox::NoButton, over);
    alert.setInformativeText(words.informative);
    std::vector<QPushButton*> buttons;
    for (const QString& button : words.buttons)
        buttons.push_back(alert.addButton(
            button, buttons.empty() ? QMessageBox::AcceptRole : QMessageBox::RejectRole));
    alert.setDefaultButton(buttons.front());
    alert.setEscapeButton(buttons.back());
    for (QLabel* label : alert.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);  // the name in it is anything
    alert.exec();
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (alert.clickedButton() == buttons[i])
            return kAlertFirstButton + static_cast<int>(i);
    }
    return kAlertFirstButton + static_cast<int>(buttons.size()) - 1;
}

#include "app/views/MenuFromEntries.h"

#include "app/tools/GridMenuItems.h"
#include "app/tools/OptionKey.h"
#include "app/views/ColorRamps.h"
#include "app/views/LayoutIcons.h"

#include <QAction>
#include <QGuiApplication>
#include <QKeySequence>
#include <QMenu>

namespace {

constexpr int kRampIcon = 32;  // pixels

// Titles are plain text: their ampersands are no key marks. The key stands behind a tab, where it
// is shown but not taken, since the grid itself takes it.
QString ActionText(const MenuEntry& entry)
{
    QString text = entry.title;
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
    const QString key =
        QKeySequence(entry.shortcut, QKeySequence::PortableText).toString(QKeySequence::NativeText);
    return key.isEmpty() ? text : text + QLatin1Char('\t') + key;
}

void Fill(QMenu* menu, const std::vector<MenuEntry>& entries);

void AddCommand(QMenu* menu, const MenuEntry& entry)
{
    QAction* action = menu->addAction(ActionText(entry));
    if (!entry.image.isEmpty()) {
        action->setIcon(MenuIcon(entry.image));
        action->setIconVisibleInMenu(true);
    }
    action->setVisible(!entry.title.isEmpty());  // one that only holds a place
    action->setData(entry.tag);
    action->setEnabled(entry.enabled);
    action->setCheckable(entry.checked);
    action->setChecked(entry.checked);
    QObject::connect(action, &QAction::triggered, menu, [perform = entry.perform] {
        if (perform)
            perform(HasOption(QGuiApplication::keyboardModifiers()));
    });
}

void AddSubmenu(QMenu* menu, const MenuEntry& entry)
{
    QMenu* submenu = menu->addMenu(ActionText(entry));
    submenu->setEnabled(entry.enabled);
    Fill(submenu, entry.children);
}

void Fill(QMenu* menu, const std::vector<MenuEntry>& entries)
{
    for (const MenuEntry& entry : entries) {
        switch (entry.kind) {
            case MenuEntry::Kind::Separator:
                menu->addSeparator();
                break;
            case MenuEntry::Kind::Command:
                AddCommand(menu, entry);
                break;
            case MenuEntry::Kind::Submenu:
                AddSubmenu(menu, entry);
                break;
        }
    }
}

}  // namespace

void FillMenu(QMenu* menu, const std::vector<MenuEntry>& entries)
{
    menu->clear();
    Fill(menu, entries);
}

std::unique_ptr<QMenu> NewMenu(const MenuEntry& root, QWidget* parent)
{
    auto menu = std::make_unique<QMenu>(root.title, parent);
    menu->setAccessibleName(root.title);
    Fill(menu.get(), root.children);
    return menu;
}

QIcon MenuIcon(const QString& image)
{
    if (const GridLayout* layout = LayoutOfImage(image.toStdString()))
        return LayoutIcon(*layout);
    if (const int table = ColorTableOfImage(image))
        return QIcon(QPixmap::fromImage(
            colorRampImage(table).scaled(kRampIcon, kRampIcon, Qt::IgnoreAspectRatio)));
    return QIcon(QStringLiteral(":/icons/%1.svg").arg(image));
}

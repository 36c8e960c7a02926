// The Open dialog lets one file or one folder be chosen.
#include "app/shell/OpenPanel.h"

#include "fixtures/TempFolder.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QListView>
#include <QPushButton>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

// Folders are listed in the background.
template <typename Condition>
bool ComesTrue(Condition condition)
{
    QElapsedTimer waited;
    for (waited.start(); waited.elapsed() < 5000;) {
        if (condition())
            return true;
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    return false;
}

QModelIndex RowOf(const QListView& list, const QString& name)
{
    for (int row = 0; row < list.model()->rowCount(list.rootIndex()); ++row)
        if (const QModelIndex index = list.model()->index(row, 0, list.rootIndex());
            index.data().toString() == name)
            return index;
    return {};
}

}  // namespace

TEST(OpenPanel, offers_files_and_folders_alike)
{
    const TempFolder folder;
    for (const char* name : {"a.jpg", "b.dcm", "plain", "full/x"})
        folder.WriteFile(name, "x");
    std::filesystem::create_directory(folder.Path("empty"));
    OpenPanel panel(folder.Path("."), nullptr);
    panel.show();
    const auto* list = panel.findChild<QListView*>(QStringLiteral("listView"));
    auto* choose = panel.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
    ASSERT_TRUE(list && choose);
    ASSERT_TRUE(ComesTrue([&] { return list->model()->rowCount(list->rootIndex()) == 5; }));
    EXPECT_FALSE(RowOf(*list, QStringLiteral("a.jpg")).flags() & Qt::ItemIsEnabled);

    struct Row {
        const char* name;
        bool canChoose;
        const char* prompt;
    };
    const Row rows[] = {{"b.dcm", true, "Open"},
                        {"empty", false, "Choose"},
                        {"plain", true, "Open"},
                        {"full", true, "Choose"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QModelIndex index = RowOf(*list, QString::fromLatin1(row.name));
        EXPECT_TRUE(index.flags() & Qt::ItemIsEnabled);
        list->selectionModel()->setCurrentIndex(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        EXPECT_EQ(choose->isEnabled(), row.canChoose);
        EXPECT_EQ(choose->text().remove(QLatin1Char('&')), QString::fromLatin1(row.prompt));
        EXPECT_TRUE(std::filesystem::equivalent(panel.chosenPath(), folder.Path(row.name)));
    }
    choose->click();
    EXPECT_EQ(panel.result(), QDialog::Accepted);
    EXPECT_TRUE(std::filesystem::equivalent(panel.chosenPath(), folder.Path("full")));
    EXPECT_TRUE(std::filesystem::equivalent(panel.shownFolder(), folder.Path(".")));
}

// What a drag holds, as the paths that are opened.
#include "app/window/DroppedPaths.h"

#include <QMimeData>
#include <QUrl>
#include <gtest/gtest.h>

TEST(DroppedPaths, keeps_the_bytes_of_names_and_leaves_out_other_machines)
{
    struct Row {
        const char* fault;
        const char* url;
        std::vector<std::string> wanted;
    };
    const Row rows[] = {
        {"escapes stay", "file:///a/b%20c", {"/a/b c"}},
        {"decoded twice", "file:///a%2525", {"/a%25"}},
        {"bytes that are no UTF-8 are lost", "file:///x%ff%e4", {"/x\xff\xe4"}},
        {"cut at a sign of URLs", "file:///q%3f%23", {"/q?#"}},
        {"another protocol", "https://host/a", {}},
    };
    for (const Row& row : rows) {
        QMimeData data;
        data.setUrls({QUrl(QString::fromLatin1(row.url))});
        EXPECT_EQ(PathsOfDrag(data), row.wanted) << row.fault;
    }
    EXPECT_TRUE(PathsOfDrag(QMimeData()).empty());
}

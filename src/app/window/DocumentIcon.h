// The icon of a document in menus and title bars.
#pragma once
#include <QIcon>

struct ZELRecentDocument;

[[nodiscard]] QIcon DocumentIcon(const ZELRecentDocument& document);

// The file behind a preference store.
#pragma once
#include "util/StatusCodes.h"

#include <QVariant>
#include <string>

// Reads the property list at `path`, lays `changes` over its dictionary (an invalid value takes the
// key out) and puts the result in its place in one step, all under a lock between programs. Missing
// folders are made (0700), the file is readable by the user alone. A damaged file goes to
// "<path>.damaged", or that with "_1", "_2", …; what could be read of it is kept. `merged` is the
// new dictionary. An errno, with the file untouched, if it can't be read, set aside or written.
[[nodiscard]] QvxStatus MergeIntoPreferenceFile(const std::string& path, const QVariantMap& changes,
                                                QVariantMap* merged);

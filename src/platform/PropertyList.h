// XML property lists, read from untrusted files and written. Kinds: bool, integer (qlonglong), real
// (double), string (QString), data (QByteArray), date (QDateTime), array (QVariantList), dict
// (QVariantMap). The binary form is not read. Any thread.
#pragma once
#include "util/StatusCodes.h"

#include <QByteArray>
#include <QVariant>
#include <string>

inline constexpr int kPropertyListMaxDepth = 64;
inline constexpr int kPropertyListMaxValues = 500000;
inline constexpr qint64 kPropertyListMaxBytes = 16 * 1024 * 1024;

struct PropertyListReading {
    QVariant fRoot;              // all that could be read; invalid if nothing
    QvxStatus fStatus = kQvxOK;  // kQvxMalformed for any fault, an errno if the file can't be read
    std::string fFault;          // the first fault in plain words with its line; empty if none
    [[nodiscard]] bool IsSound() const { return fStatus == kQvxOK; }
};

// A value that means nothing (a number out of range, broken base 64, an unknown kind) and a key
// without a value are left out, and reading goes on; where the markup itself is broken, too deep
// or too long, reading stops with what stood before. Bytes that are no UTF-8 become U+FFFD and are
// a fault. Entity declarations are refused.
[[nodiscard]] PropertyListReading ReadPropertyList(const QByteArray& bytes);
// The same from a regular file of at most kPropertyListMaxBytes; kQvxFileNotFound if there is none.
[[nodiscard]] PropertyListReading ReadPropertyListFile(const std::string& path);

// Characters that XML can't carry become U+FFFD, so that what is written can be read.
// kQvxBadArgument for a value of another kind, or nested deeper than is read again.
[[nodiscard]] QvxStatus WritePropertyList(const QVariant& root, QByteArray* bytes);

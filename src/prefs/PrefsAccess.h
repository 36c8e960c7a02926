// How the functions of this folder reach the store. Not for other folders.
#pragma once
#include <QVariant>
#include <string>

[[nodiscard]] bool ReadBool(const char* key);
// A number that no int holds reads as 0.
[[nodiscard]] int ReadInt(const char* key);
// `usual` for a number outside of `least` to `most`, both of which count.
[[nodiscard]] int ReadIntWithin(const char* key, int least, int most, int usual);
void Store(const char* key, const QVariant& value);

// Folders are bytes. One that can't be kept as text is kept as data. An empty one reads as the
// home folder.
[[nodiscard]] std::string ReadFolder(const char* key);
void StoreFolder(const char* key, const std::string& folder);

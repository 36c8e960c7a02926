// The files and folders that a drag holds.
#pragma once
#include <string>
#include <vector>

class QMimeData;

// Their paths as bytes, also where a name is no valid UTF-8. Empty when it holds none of this
// machine's.
[[nodiscard]] std::vector<std::string> PathsOfDrag(const QMimeData& data);

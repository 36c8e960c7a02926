// A few standing threads for work on the rows of one large picture. They are started when work
// first needs them and end by themselves when none has come for a while. Internal to this folder.
#pragma once
#include <cstdint>
#include <functional>

// How many parts `pixels` of work are worth: 1 below a megapixel, as waking a thread costs time
// too, and never more than there are processors.
[[nodiscard]] int PartsOfWork(std::int64_t pixels);

// Runs part(0) to part(parts - 1), the caller taking its share, and returns when all have run. The
// parts may run at once and must not throw. Where no thread is to be had, or another caller's parts
// are under way, the caller runs them all; so does a process that was forked off.
void RunParts(int parts, const std::function<void(int)>& part);

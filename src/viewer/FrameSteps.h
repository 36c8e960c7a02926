// Where keys lead among the frames of a sequence. An index counts frames from 0.
#pragma once

enum class FrameStep { First, Previous, Next, TenBack, TenOn, Last };

// Index after `step` from `current`, kept within 0 to `count` - 1; 0 without frames.
[[nodiscard]] int SteppedIndex(FrameStep step, int current, int count);

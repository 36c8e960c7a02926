// Turns wheel movement into whole steps: a notch of a plain wheel is one, and the small movements
// of high-resolution wheels and touch pads add up until they make one.
#pragma once

class WheelSteps {
public:
    // Whole steps that `delta` (eighths of a degree, above 0 is away from the user) completes;
    // negative downward. The rest is kept for the next call, but not across a turn of direction:
    // the first movement back must not have to undo what was left over.
    [[nodiscard]] int add(int delta)
    {
        if (delta == 0)
            return 0;
        if ((delta > 0) != (_rest > 0))
            _rest = 0;
        const long long sum = static_cast<long long>(_rest) + delta;
        _rest = static_cast<int>(sum % kNotch);
        return static_cast<int>(sum / kNotch);
    }
    // A new gesture begins.
    void reset() { _rest = 0; }

private:
    static constexpr int kNotch = 120;  // eighths of a degree
    int _rest = 0;
};

#pragma once

namespace cirrava {

// The two sides from which a range is marked.
enum class Side { start, end };

// The cells `first` to `last` of a scale, both included; none where `first` is above `last`.
struct Range {
    int first = 0;
    int last = -1;

    bool holds(int cell) const { return first <= cell && cell <= last; }
    bool operator==(const Range&) const = default;
};

} // namespace cirrava

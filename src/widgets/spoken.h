#pragma once

#include <QAccessible>

namespace cirrava {

// A widget that screen readers know in its own way.
class Spoken {
public:
    virtual ~Spoken() = default;

    // Makes what speaks for it. The caller owns that.
    virtual QAccessibleInterface* new_accessible() = 0;
};

} // namespace cirrava

#pragma once

#include <QAccessible>

namespace cirrava {

// A widget that gives screen readers an interface of its own: `set_up_application` has Qt ask for
// it.
class Spoken {
public:
    virtual ~Spoken() = default;

    // Makes what speaks for it. The caller owns that.
    virtual QAccessibleInterface* new_accessible() = 0;
};

} // namespace cirrava

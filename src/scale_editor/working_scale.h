#pragma once

#include "scale_editor/scale_controls.h"

namespace cirrava {

// The scale that a colour is applied to. It is what `Label5` says, and the controls that belong to
// one scale only follow it.
class WorkingScale {
public:
    explicit WorkingScale(ScaleControls& controls) : controls_(controls) {}

    void set(ScaleKind kind);
    ScaleKind kind() const; // after a first `set`

private:
    ScaleControls& controls_;
};

} // namespace cirrava

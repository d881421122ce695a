#pragma once

#include "platform/controls.h"
#include "scale_editor/scale.h"

#include <QLabel>
#include <optional>

namespace cirrava {

// The scale that a colour is applied to. It is what `Label5` says, and the controls that belong to
// one scale only follow it.
class WorkingScale {
public:
    struct ScaleButtons {
        Button& choose;   // green while its scale is the working scale
        Button& generate; // enabled while its scale is the working scale
    };
    struct Controls {
        QLabel& Label5;
        ScaleButtons thermal, sea, hvc;
        Button& Command1;    // Reset, on HVC only
        NumberBar& HScroll4; // brightness, on HVC only
    };

    explicit WorkingScale(const Controls& controls) : controls_(controls) {}

    void set(ScaleKind kind);
    // Nothing before the first `set`.
    std::optional<ScaleKind> kind() const;

private:
    Controls controls_;
};

} // namespace cirrava

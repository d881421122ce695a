#include "colour/colour_picker.h"

#include "scale_editor/qt_values.h"

namespace cirrava {

void ColourPicker::pick() {
    try {
        cdlopen_.CancelError = true;
        cdlopen_.ShowColor();
        current_colour_.take(from_qt(cdlopen_.Color));
    } catch (const Failure& failure) {
        if (failure.number != FailureNumber::cancelled)
            dialogs_.tell(
                failure_message("Error# ", failure, " A problem occured in color picking"));
    }
}

} // namespace cirrava

#include "colour/pick_colour.h"

#include "scale_editor/qt_values.h"

namespace cirrava {

void pick_colour(CommonDialog& cdlopen, CurrentColour& current_colour) {
    try {
        // From black, the dialog's spectrum shows no colour.
        const bool black = current_colour.colour() == RGB(0, 0, 0);
        cdlopen.ShowColor(black ? Qt::white : to_qt(current_colour.colour()));
        current_colour.take(from_qt(cdlopen.Color));
    } catch (const Failure& failure) {
        if (failure.number != FailureNumber::cancelled) // which no dialog of today's Qt throws
            cdlopen.tell("Error# ", failure, " A problem occured in color picking");
    }
}

} // namespace cirrava

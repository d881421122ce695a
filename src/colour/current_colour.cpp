#include "colour/current_colour.h"

#include "scale_editor/qt_values.h"
#include "widgets/in_reach.h"

namespace cirrava {

CurrentColour::CurrentColour(Swatch& sample, const ColourChannels& channels)
    : sample_(sample), channels_(channels) {
    follow_sliders();
}

Colour CurrentColour::colour() const {
    return from_qt(sample_.colour());
}

void CurrentColour::take(Colour color) {
    sample_.set_colour(to_qt(color));
    Color_to_RGB(color);
}

void CurrentColour::Color_to_RGB(Colour color) {
    const auto [red, green, blue] = Data_byte_calc(color);
    channels_[0].slider.setValue(red);
    channels_[1].slider.setValue(green);
    channels_[2].slider.setValue(blue);
}

void CurrentColour::follow_sliders() {
    if (!in_reach(channels_[0].slider)) // where one of them is, all are
        return take(colour());
    const int red = channels_[0].slider.value();
    const int green = channels_[1].slider.value();
    const int blue = channels_[2].slider.value();
    sample_.set_colour({red, green, blue});
    channels_[0].slider.set_track({0, green, blue}, {255, green, blue});
    channels_[1].slider.set_track({red, 0, blue}, {red, 255, blue});
    channels_[2].slider.set_track({red, green, 0}, {red, green, 255});
    for (const auto& [slider, readout] : channels_)
        readout.setText(QString::number(slider.value()));
}

} // namespace cirrava

#include "colour/current_colour.h"

#include "scale_editor/qt_values.h"

namespace cirrava {

Colour CurrentColour::colour() const {
    return from_qt(controls_.sample.colour());
}

void CurrentColour::take(Colour color) {
    controls_.sample.set_colour(to_qt(color));
    Color_to_RGB(color);
}

void CurrentColour::Color_to_RGB(Colour color) {
    const ChannelBytes bytes = Data_byte_calc(color);
    controls_.HScroll1.setValue(bytes.red_byte);
    controls_.HScroll2.setValue(bytes.green_byte);
    controls_.HScroll3.setValue(bytes.blue_byte);
}

void CurrentColour::slider_moved(const ColourControls::Channel& channel) {
    controls_.sample.set_colour(
        QColor(controls_.HScroll1.value(), controls_.HScroll2.value(), controls_.HScroll3.value()));
    channel.readout.setText(QString::number(channel.slider.value()));
}

} // namespace cirrava

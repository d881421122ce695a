#include "colour/current_colour.h"

#include "scale_editor/qt_values.h"

namespace cirrava {

namespace {

void show_position(QLabel& readout, const NumberBar& slider) {
    readout.setText(QString::number(slider.value()));
}

} // namespace

void CurrentColour::start() {
    for (NumberBar* slider : {&controls_.HScroll1, &controls_.HScroll2, &controls_.HScroll3})
        slider->setRange(0, 255);
    red_moved();
    green_moved();
    blue_moved();
}

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

void CurrentColour::red_moved() {
    show_sliders_colour();
    show_position(controls_.Label15, controls_.HScroll1);
}

void CurrentColour::green_moved() {
    show_sliders_colour();
    show_position(controls_.Label16, controls_.HScroll2);
}

void CurrentColour::blue_moved() {
    show_sliders_colour();
    show_position(controls_.Label17, controls_.HScroll3);
}

void CurrentColour::show_sliders_colour() {
    controls_.sample.set_colour(
        QColor(controls_.HScroll1.value(), controls_.HScroll2.value(), controls_.HScroll3.value()));
}

} // namespace cirrava

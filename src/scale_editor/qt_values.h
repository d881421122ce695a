#pragma once

#include "scale_editor/colour.h"

#include <QColor>
#include <QString>
#include <string_view>

// Conversions between the core's values and Qt's.
namespace cirrava {

inline QString to_qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QColor to_qt(Colour colour) {
    const ChannelBytes bytes = Data_byte_calc(colour);
    return {bytes.red_byte, bytes.green_byte, bytes.blue_byte};
}

inline Colour from_qt(const QColor& colour) {
    return RGB(colour.red(), colour.green(), colour.blue());
}

} // namespace cirrava

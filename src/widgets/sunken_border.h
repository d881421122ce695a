#pragma once

#include <QFrame>

namespace cirrava {

inline void give_sunken_border(QFrame& frame) {
    frame.setFrameStyle(QFrame::Panel | QFrame::Sunken);
    frame.setLineWidth(2);
}

} // namespace cirrava

#include "scale_editor/range_box.h"

#include <QKeyEvent>
#include <array>

namespace cirrava {

namespace {

constexpr int page = 10;
constexpr int beyond = 1000; // more cells than any scale has

struct Step {
    int key;
    Qt::KeyboardModifiers modifiers;
    int cells;
};

constexpr std::array steps{
    Step{Qt::Key_Up, Qt::NoModifier, 1},
    Step{Qt::Key_Right, Qt::NoModifier, 1},
    Step{Qt::Key_Down, Qt::NoModifier, -1},
    Step{Qt::Key_Left, Qt::NoModifier, -1},
    Step{Qt::Key_PageUp, Qt::NoModifier, page},
    Step{Qt::Key_PageDown, Qt::NoModifier, -page},
    Step{Qt::Key_End, Qt::ControlModifier, beyond},
    Step{Qt::Key_Home, Qt::ControlModifier, -beyond},
};

} // namespace

void RangeBox::keyPressEvent(QKeyEvent* event) {
    for (const auto& [key, modifiers, cells] : steps)
        if (event->key() == key && (event->modifiers() & ~Qt::KeypadModifier) == modifiers)
            return emit stepped(cells);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return emit colour_asked();
    QLineEdit::keyPressEvent(event);
}

} // namespace cirrava

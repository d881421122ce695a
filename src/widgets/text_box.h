#pragma once

#include "widgets/sunken_border.h"

#include <QLabel>

namespace cirrava {

// A sunken box with a line of text, which Tab reaches but nobody types into. The text can be marked
// with the mouse and copied.
class TextBox : public QLabel {
public:
    TextBox() {
        give_sunken_border(*this);
        setBackgroundRole(QPalette::Base);
        setAutoFillBackground(true);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    // To mark text, Qt makes a document of it, which would cost every start time and memory.
    void enterEvent(QEnterEvent*) override {
        setTextInteractionFlags(Qt::TextSelectableByMouse);
        setFocusPolicy(Qt::StrongFocus); // which Qt has just changed to that of a click
    }
};

} // namespace cirrava

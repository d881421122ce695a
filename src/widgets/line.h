#pragma once

#include <QWidget>

namespace cirrava {

// A line that fills its whole box with its text colour.
class Line : public QWidget {
public:
    Line() {
        setBackgroundRole(QPalette::WindowText);
        setAutoFillBackground(true);
    }
};

} // namespace cirrava

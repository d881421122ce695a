#pragma once

#include <QWidget>

namespace cirrava {

// The red arrow at the end of a row of cells that goes on in the row below.
class ContinuationArrow : public QWidget {
protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace cirrava

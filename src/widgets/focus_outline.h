#pragma once

#include <QFocusFrame>

namespace cirrava {

// Shows which control of `window` has the focus, once keys have moved it there, by two black and a
// white line along its edge. They stand out from every colour and leave the pixels within them as
// they are.
class FocusOutline : public QFocusFrame {
public:
    explicit FocusOutline(QWidget& window);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace cirrava

#pragma once

#include <QFocusFrame>

namespace cirrava {

// Shows which control of `window` has the keyboard, once keys have moved it there: a black and a
// white line around its edge, which stand out from every colour and leave the pixels within them
// as they are.
class FocusOutline : public QFocusFrame {
    Q_OBJECT
public:
    explicit FocusOutline(QWidget& window);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace cirrava

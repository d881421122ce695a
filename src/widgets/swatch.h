#pragma once

#include <QFrame>

namespace cirrava {

// A box with a sunken border that shows one colour.
class Swatch : public QFrame {
    Q_OBJECT
public:
    Swatch();

    void set_colour(const QColor& colour);
    QColor colour() const { return colour_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_;
};

} // namespace cirrava

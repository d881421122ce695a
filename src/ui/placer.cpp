#include "ui/placer.h"

#include "widgets/focus_outline.h"

#include <QEvent>
#include <QScreen>
#include <QtMath>

namespace cirrava {

namespace {

// Keeps the size of a window that cannot be resized, on whichever screen.
class FixedSize : public QObject {
public:
    FixedSize(QWidget& window, QSize size) : QObject(&window), window_(window), size_(size) {
        window.setFixedSize(size);
        window.installEventFilter(this);
    }

    // On a screen of another density a window keeps its number of device pixels. To set the size
    // that it has already would reach no window manager. (The handle tells of the screen, too, but
    // one that is asked for early gives every control a handle of its own.)
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ScreenChangeInternal) {
            window_.setFixedSize(size_ + QSize(1, 1));
            window_.setFixedSize(size_);
        }
        return false;
    }

private:
    QWidget& window_;
    QSize size_;
};

// Returns by how much a client area must be shrunk to fit on `screen`: to 1 at the most, and not
// below 0.6 device pixels for each dot where the screen has as many.
double fitting(QSize client_area, const QScreen& screen) {
    constexpr QSize frame(10, 40); // about what window managers put around a window
    const QSizeF room = screen.availableSize() - frame;
    return qBound(qMin(1.0, 0.6 / screen.devicePixelRatio()),
                  qMin(room.width() / client_area.width(), room.height() / client_area.height()),
                  1.0);
}

// Narrows the font of `control` until `caption` fits `box`, which is in the control's pixels.
void fit(QWidget& control, const QString& caption, const QRect& box) {
    constexpr int narrowest = 60; // percent; nobody could read a narrower font
    const auto fits = [&] {
        const QFontMetrics metrics = control.fontMetrics();
        const QRect endless(0, 0, box.width(), QWIDGETSIZE_MAX);
        const QSize room = metrics.boundingRect(endless, Qt::TextWordWrap, caption).size();
        const bool one_line = room.height() < 2 * metrics.height();
        return room.width() <= box.width() && (one_line || room.height() <= box.height());
    };
    if (fits())
        return;
    QFont font = control.font();
    // By the names asked for, Qt may find an italic font when it is to be narrower.
    font.setFamily(control.fontInfo().family());
    for (int percent = 98; !fits() && percent >= narrowest; percent -= 2) {
        font.setStretch(percent);
        control.setFont(font);
    }
}

} // namespace

Placer::Placer(QWidget& window, const QString& title, QSize client_area) : window_(window) {
    const int screen_dpi = window.logicalDpiX();
    const TwipRect rect{0, 0, client_area.width(), client_area.height()};
    dpi_ = qFloor(screen_dpi * fitting(to_pixels(rect, screen_dpi).size(), *window.screen()));
    shrink_ = double(dpi_) / screen_dpi;

    const Qt::WindowFlags kind = window.windowFlags() & Qt::WindowType_Mask;
    window.setWindowFlags(kind | Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                          Qt::MSWindowsFixedSizeDialogHint);
    window.setWindowTitle(title);
    if (shrink_ < 1)
        window.setFont(scaled_font({}));
    new FixedSize(window, to_pixels(rect, dpi_).size()); // the window owns both
    new FocusOutline(window);
}

void Placer::control(QWidget& control, const QString& name, const QString& spoken,
                     const TwipRect& rect) const {
    control.setParent(&window_);
    control.setObjectName(name);
    control.setAccessibleName(spoken);
    control.setGeometry(to_pixels(rect, dpi_));
}

void Placer::label(QLabel& label, const QString& name, const QString& text, const TwipRect& rect,
                   const Look& look) const {
    control(label, name, {}, rect);
    give_look(label, look);
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    label.setText(text);
}

void Placer::button(Button& button, const QString& name, const QString& caption,
                    const TwipRect& rect, const Look& look) const {
    control(button, name, {}, rect);
    give_look(button, {.font = look.font});
    if (look.ground)
        button.set_face(*look.ground);
    button.setText(caption);
}

void Placer::give_look(QWidget& control, const Look& look) const {
    // Only what the look names is set: controls that keep the program's font and palette also share
    // what the style has drawn for them.
    if (look.font != FontLook{}) {
        QFont caption_font = scaled_font(look.font);
        caption_font.setStyleStrategy(QFont::NoFontMerging); // they need no letters of other fonts
        control.setFont(caption_font);
    }
    if (!look.text && !look.ground)
        return;
    QPalette palette = control.palette();
    if (look.text)
        palette.setColor(control.foregroundRole(), QColor(*look.text));
    if (look.ground) {
        palette.setColor(control.backgroundRole(), QColor(*look.ground));
        control.setAutoFillBackground(true);
    }
    control.setPalette(palette);
}

QFont Placer::scaled_font(const FontLook& look) const {
    QFont font = to_font(look);
    font.setPointSizeF(look.points * shrink_);
    return font;
}

void fit_captions(QWidget& window) {
    for (auto* const label : window.findChildren<QLabel*>())
        fit(*label, label->text().trimmed(), label->contentsRect());
    for (auto* const button : window.findChildren<Button*>())
        fit(*button, button->text().trimmed(), button->caption_box());
}

} // namespace cirrava

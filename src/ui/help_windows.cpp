#include "ui/help_windows.h"

#include "ui/help_texts.h"
#include "ui/placer.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QWindow>

namespace cirrava {

namespace {

constexpr QRgb paper = qRgb(255, 192, 128);
constexpr QRgb dark_green = qRgb(0, 64, 0);
constexpr QRgb green = qRgb(0, 128, 0);

// A text to read, of which only whole lines show.
class HelpText : public QPlainTextEdit {
protected:
    void paintEvent(QPaintEvent* event) override {
        QRect box = viewport()->rect();
        const QRect last_line = cursorRect(cursorForPosition(box.bottomLeft()));
        if (last_line.bottom() > box.bottom())
            box.setBottom(last_line.top() - 1);
        QPaintEvent whole_lines(event->rect() & box);
        QPlainTextEdit::paintEvent(&whole_lines);
    }
};

// A window with a text to read and a button that closes it.
class HelpWindow : public QDialog, public Placer {
public:
    HelpWindow(QWidget& parent, const QString& name, const QString& title, QSize client_area)
        : QDialog(&parent), Placer(*this, title, client_area) {
        setObjectName(name);
        Command1.setAutoDefault(false); // Enter in the text does not press it
        connect(&Command1, &Button::clicked, this, &QDialog::accept);
    }

    void text(const QString& text, const TwipRect& rect, QRgb ink, const FontLook& font) {
        control(Text1, "Text1", windowTitle(), rect);
        Text1.setFont(scaled_font(font));
        QPalette palette = Text1.palette();
        palette.setColor(QPalette::Base, QColor(paper));
        palette.setColor(QPalette::Text, QColor(ink));
        Text1.setPalette(palette);
        Text1.setReadOnly(true);
        Text1.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        Text1.setTabChangesFocus(true);
        Text1.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        Text1.setPlainText(text);
        Text1.setFocus();
    }

    QLabel Label1;
    HelpText Text1;
    Button Command1;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QWidget::keyPressEvent(event); // neither Esc nor Enter closes the window
    }

    // QDialog would put itself over its parent, and its title bar above the screen where the parent
    // stands high. The windowing system chooses a better place.
    void showEvent(QShowEvent* event) override {
        windowHandle()->setScreen(parentWidget()->screen());
        QWidget::showEvent(event);
    }
};

} // namespace

void show_palhelp(QWidget& parent) {
    HelpWindow window(parent, "palhelp", "Cirrava PAL How To", {10170, 9255});
    window.text(how_to_use_text, {240, 240, 9375, 8175}, dark_green, {.points = 12});
    window.button(window.Command1, "Command1", "Exit", {3600, 8520, 2295, 615});
    window.exec();
}

void show_hvchelp(QWidget& parent) {
    constexpr Look heading{.font = {FontFamily::narrow, 14.25, true, true}}; // underlined
    constexpr Look narrow{.font = {.family = FontFamily::narrow}};
    HelpWindow window(parent, "hvchelp", "About HVC Palette", {4680, 6915});
    window.label(window.Label1, "Label1", "Information about HVC Palette", {120, 240, 4335, 375},
                 heading);
    window.text(hvc_text, {120, 840, 4335, 5175}, green, {.points = 9.75});
    window.button(window.Command1, "Command1", "QUIT", {1320, 6240, 1935, 495}, narrow);
    fit_captions(window);
    window.exec();
}

} // namespace cirrava

#include "ui/help_windows.h"

#include "ui/help_texts.h"
#include "ui/placer.h"
#include "widgets/button.h"

#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>

namespace cirrava {

namespace {

constexpr QRgb paper = qRgb(255, 192, 128);
constexpr QRgb dark_green = qRgb(0, 64, 0);
constexpr QRgb green = qRgb(0, 128, 0);

// A window with a text to read and a button that closes it.
class HelpWindow : public QDialog {
public:
    HelpWindow(QWidget& parent, const QString& name, const QString& title, QSize client_area)
        : QDialog(&parent), placer_(*this, title, client_area) {
        setObjectName(name);
        connect(&Command1_, &Button::clicked, this, &QDialog::accept);
    }

    void place_heading(const QString& text, const TwipRect& rect, const FontLook& font) {
        placer_.place(Label1_, "Label1", rect);
        placer_.give_look(Label1_, {.font = font});
        Label1_.setText(text);
    }

    void place_text(const QString& text, const TwipRect& rect, QRgb ink, const FontLook& font) {
        placer_.place(Text1_, "Text1", rect);
        Text1_.setFont(placer_.font(font));
        QPalette palette = Text1_.palette();
        palette.setColor(QPalette::Base, QColor(paper));
        palette.setColor(QPalette::Text, QColor(ink));
        Text1_.setPalette(palette);
        Text1_.setReadOnly(true);
        Text1_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        Text1_.setTabChangesFocus(true);
        Text1_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        Text1_.setAccessibleName(windowTitle());
        Text1_.setPlainText(text);
        Text1_.setFocus();
    }

    void place_button(const QString& caption, const TwipRect& rect, const FontLook& font) {
        placer_.place(Command1_, "Command1", rect);
        placer_.give_look(Command1_, {.font = font});
        Command1_.setText(caption);
        Command1_.setAutoDefault(false); // Enter in the text does not press it
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QWidget::keyPressEvent(event); // neither Esc nor Enter closes the window
    }

private:
    const Placer placer_;
    QLabel Label1_;
    QPlainTextEdit Text1_;
    Button Command1_;
};

} // namespace

void show_palhelp(QWidget& parent) {
    HelpWindow window(parent, "palhelp", "Cirrava PAL How To", {10170, 9255});
    window.setWindowIcon(parent.windowIcon());
    window.place_text(how_to_use_text, {240, 240, 9375, 8175}, dark_green, {.points = 12});
    window.place_button("Exit", {3600, 8520, 2295, 615}, {});
    window.exec();
}

void show_hvchelp(QWidget& parent) {
    HelpWindow window(parent, "hvchelp", "About HVC Palette", {4680, 6915});
    window.place_heading(
        "Information about HVC Palette", {120, 240, 4335, 375},
        {.family = FontFamily::narrow, .points = 14.25, .bold = true, .underlined = true});
    window.place_text(hvc_text, {120, 840, 4335, 5175}, green, {.points = 9.75});
    window.place_button("QUIT", {1320, 6240, 1935, 495}, {.family = FontFamily::narrow});
    fit_captions(window);
    window.exec();
}

} // namespace cirrava

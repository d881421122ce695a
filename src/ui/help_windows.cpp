#include "ui/help_windows.h"

#include "ui/help_texts.h"
#include "ui/look.h"
#include "ui/placing.h"
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
        : QDialog(&parent) {
        setObjectName(name);
        make_fixed_window(*this, title, client_area);
        connect(&Command1_, &Button::clicked, this, &QDialog::accept);
    }

    void place_text(const QString& text, const TwipRect& rect, QRgb ink, const FontLook& font) {
        place(Text1_, *this, "Text1", rect);
        Text1_.setFont(to_font(font));
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
        place(Command1_, *this, "Command1", rect);
        give_look(Command1_, {.font = font});
        Command1_.setText(caption);
        Command1_.setAutoDefault(false); // Enter in the text does not press it
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QWidget::keyPressEvent(event); // neither Esc nor Enter closes the window
    }

private:
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
    QLabel Label1;
    place(Label1, window, "Label1", {120, 240, 4335, 375});
    give_look(
        Label1,
        {.font = {
             .family = FontFamily::narrow, .points = 14.25, .bold = true, .underlined = true}});
    Label1.setText("Information about HVC Palette");
    window.place_text(hvc_text, {120, 840, 4335, 5175}, green, {.points = 9.75});
    window.place_button("QUIT", {1320, 6240, 1935, 495}, {.family = FontFamily::narrow});
    fit_captions(window);
    window.exec();
}

} // namespace cirrava

#include "ui/help_windows.h"

#include "ui/placer.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QWindow>

namespace cirrava {

namespace {

constexpr QRgb paper = qRgb(255, 192, 128);

// A text, and how it stands in a window.
struct Part {
    QString text;
    TwipRect rect;
    Look look = {};
};

// A text to read, of which only whole lines show.
class HelpText : public QPlainTextEdit {
public:
    HelpText() {
        setForegroundRole(QPalette::Text);
        setBackgroundRole(QPalette::Base);
        setReadOnly(true);
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        setTabChangesFocus(true);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    }

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

// A window with a text to read and a button that closes it, under a heading or none.
class HelpWindow : public QDialog, private Placer {
public:
    HelpWindow(QWidget& parent, const QString& name, const QString& title, QSize client_area,
               const Part& text, const Part& exit, const Part& heading = {})
        : QDialog(&parent), Placer(*this, title, client_area) {
        setObjectName(name);
        if (!heading.text.isEmpty())
            label(*new QLabel, "Label1", heading.text, heading.rect, heading.look); // the window's
        control(Text1_, "Text1", title, text.rect);
        give_look(Text1_, text.look);
        Text1_.setAutoFillBackground(false); // within its frame, it fills itself
        Text1_.setPlainText(text.text);
        Text1_.setFocus();
        button(Command1_, "Command1", exit.text, exit.rect, exit.look);
        Command1_.setAutoDefault(false); // Enter in the text does not press it
        connect(&Command1_, &Button::clicked, this, &QDialog::accept);
        fit_captions(*this);
    }

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

private:
    HelpText Text1_;
    Button Command1_;
};

} // namespace

void show_palhelp(QWidget& parent) {
    constexpr Look dark_green{.text = qRgb(0, 64, 0), .ground = paper, .font = {.points = 12}};
    HelpWindow(parent, "palhelp", "Cirrava PAL How To", {10170, 9255},
               {read_text(":/how_to_use.txt"), {240, 240, 9375, 8175}, dark_green},
               {"Exit", {3600, 8520, 2295, 615}})
        .exec();
}

void show_hvchelp(QWidget& parent) {
    constexpr Look green{.text = qRgb(0, 128, 0), .ground = paper, .font = {.points = 9.75}};
    constexpr Look narrow{.font = {.family = FontFamily::narrow}};
    constexpr Look underlined{.font = {FontFamily::narrow, 14.25, true, true}};
    HelpWindow(parent, "hvchelp", "About HVC Palette", {4680, 6915},
               {read_text(":/hvc.txt"), {120, 840, 4335, 5175}, green},
               {"QUIT", {1320, 6240, 1935, 495}, narrow},
               {"Information about HVC Palette", {120, 240, 4335, 375}, underlined})
        .exec();
}

} // namespace cirrava

#pragma once

#include "ui/cirrava.h"

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace cirrava {

// Stands in for the user in front of the dialogs: answers from what is set here.
struct User {
    std::optional<QString> path; // nothing: the user cancels
    std::optional<QColor> colour;
    bool yes = true;
    std::function<void()> meanwhile = [] {}; // happens while a question stands
    QStringList saw;                         // the dialogs and messages, in order

    Dialogs dialogs() {
        const auto choose_file = [this](const FileQuestion& asked) {
            saw << asked.title + ": " + asked.name + " of " + asked.filter + " in " + asked.folder;
            return path;
        };
        const auto choose_colour = [this](const QColor& initial) {
            saw << initial.name();
            return colour;
        };
        const auto ask = [this](const QString& text, const QString& title) {
            saw << title + ": " + text;
            meanwhile();
            return yes;
        };
        const auto tell = [this](const QString& text) { saw << text; };
        return {choose_file, choose_file, choose_colour, ask, tell};
    }
};

// Does `action` in the next modal window of type `Dialog`, as soon as it has the keyboard, and
// closes the window where the action has not.
template <class Dialog> void in_next(const std::function<void(Dialog&)>& action) {
    QTimer::singleShot(0, [action] {
        auto& dialog = dynamic_cast<Dialog&>(*QApplication::activeModalWidget());
        EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isActiveWindow(); }));
        action(dialog);
        if (dialog.isVisible())
            dialog.reject();
    });
}

// The control of that name.
template <class Control = QWidget> Control& find_in(const QWidget& window, const QString& name) {
    auto* const control = window.findChild<Control*>(name);
    Q_ASSERT_X(control != nullptr, "there is no control", qPrintable(name));
    return *control;
}

// The real window on the offscreen platform, worked by real mouse and key events. The current
// folder, where the preview is written, is a fresh one.
class WindowTest : public testing::Test {
protected:
    WindowTest() {
        QDir::setCurrent(folder.path());
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <class Control = QWidget> Control& find(const QString& name) {
        return find_in<Control>(window, name);
    }
    QString text(const QString& control) { return find(control).property("text").toString(); }
    CellArray& thermal() { return find<CellArray>("thermal_char"); }
    CellArray& sea() { return find<CellArray>("Label2"); }
    CellArray& hvc() { return find<CellArray>("Label3"); }
    Slider& brightness() { return find<Slider>("HScroll4"); }
    QColor swatch() { return find<Swatch>("sample").colour(); }
    QImage preview() { return find<PictureBox>("Picture1").image(); }

    void press(const QKeySequence& keys) { QTest::keySequence(window.focusWidget(), keys); }
    static QPoint inside(const CellArray& cells, int cell) { // of the window
        return cells.pos() + cells.cell_box(cell).topLeft() + QPoint(3, 5);
    }

    // Does what a user does, step by step: "click Command1, press Text1 Ctrl+End" or, with a button
    // of the mouse, "left thermal_char 220"; "double" is a double click with the left one. "hold"
    // presses without release.
    void act(const QString& steps) {
        for (const QString& step : steps.split(", ")) {
            const QStringList words = step.split(' ');
            auto& control = find(words[1]);
            const auto button = words[0] == "right"    ? Qt::RightButton
                                : words[0] == "middle" ? Qt::MiddleButton
                                                       : Qt::LeftButton;
            if (words[0] == "press") {
                control.setFocus();
                press(QKeySequence(words[2]));
            } else if (words[0] == "click") {
                QTest::mouseClick(&control, button);
            } else if (words[0] == "hold") { // near the end, where a slider has an arrow
                QTest::mousePress(&control, button, {},
                                  control.rect().bottomRight() - QPoint(4, 8));
            } else {
                const QPoint point = inside(find<CellArray>(words[1]), words[2].toInt());
                QTest::mouseClick(window.windowHandle(), button, {}, point);
                if (words[0] == "double")
                    QTest::mouseDClick(window.windowHandle(), button, {}, point);
            }
        }
    }

    // Gives the cells `first` to `last` the colour of a preset.
    void paint(const QString& scale, int first, int last, int preset) {
        act(QString("left %1 %2, right %1 %3").arg(scale).arg(first).arg(last));
        act(QString("click color(%1), click Command2").arg(preset));
    }

    User user;
    QTemporaryDir folder;
    Cirrava window{user.dialogs()};
};

} // namespace cirrava

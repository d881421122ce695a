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
        return {choose_file, choose_file, choose_colour, ask,
                [this](const QString& text) { saw << text; }};
    }
};

// Does `action` in the modal window of type `Dialog` that opens by `open`, as soon as it has the
// keyboard, and closes the window where the action has not.
template <class Dialog>
void in_window(const std::function<void()>& open, const std::function<void(Dialog&)>& action) {
    bool opened = false;
    QTimer look;
    look.callOnTimeout([&] {
        auto* const dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        look.stop();
        opened = QTest::qWaitFor([&] { return dialog->isActiveWindow(); });
        action(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
    look.start(0);
    open();
    EXPECT_TRUE(opened) << "no such window";
}

// The control of that name.
template <class Control = QWidget> Control& find_in(const QWidget& window, const QString& name) {
    auto* const control = window.findChild<Control*>(name);
    EXPECT_NE(control, nullptr) << "there is no " << qPrintable(name);
    return *control;
}

// The real window on the offscreen platform, worked by real mouse and key events. The user's home,
// the only folder of programs and the current folder, where the preview is written, are a fresh
// one.
class WindowTest : public testing::Test {
protected:
    WindowTest() {
        for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "PATH"})
            qputenv(variable, folder.path().toUtf8());
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
    QAccessibleInterface& heard(const QString& control) {
        return *QAccessible::queryAccessibleInterface(&find(control));
    }

    // To what a windowing system hands it.
    static void mouse(QTest::MouseAction action, QWidget& control, QPoint point,
                      Qt::MouseButton button = Qt::LeftButton) {
        QWidget& native = control.windowHandle() ? control : *control.nativeParentWidget();
        QTest::mouseEvent(action, native.windowHandle(), button, {}, control.mapTo(&native, point));
    }
    // At places between whole pixels, too.
    void mouse_at(QPointF point, std::initializer_list<QEvent::Type> does) {
        for (const auto type : does) { // X11 tells the place on the screen in whole pixels
            const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
            QMouseEvent event(type, point, window.mapToGlobal(point.toPoint()), button, button, {});
            QCoreApplication::sendEvent(window.windowHandle(), &event);
        }
    }
    void press(const QKeySequence& keys) { QTest::keySequence(window.focusWidget(), keys); }

    // In the strip of a cell.
    static QPoint place_of(const CellArray& cells, int cell) {
        return cells.cell_box(cell).topLeft() + QPoint(3, 5);
    }

    // Does what a user does, step by step: "press Text1 Ctrl+End, click Command1", or on a cell
    // with a button of the mouse, "left thermal_char 220", or below the cell, between two rows,
    // "left thermal_char 220 below". "down" and "up" are the halves of "left".
    void act(const QString& steps) {
        using enum QTest::MouseAction;
        static const QHash<QString, std::pair<QTest::MouseAction, Qt::MouseButton>> mouse_verbs{
            {"click", {MouseClick, Qt::LeftButton}},   {"left", {MouseClick, Qt::LeftButton}},
            {"right", {MouseClick, Qt::RightButton}},  {"middle", {MouseClick, Qt::MiddleButton}},
            {"double", {MouseDClick, Qt::LeftButton}}, {"down", {MousePress, Qt::LeftButton}},
            {"up", {MouseRelease, Qt::LeftButton}}};
        for (const QString& step : steps.split(", ")) {
            const QStringList words = step.split(' ');
            QWidget& control = find(words[1]);
            if (words[0] == "press") {
                control.setFocus();
                press(QKeySequence(words[2]));
                continue;
            }
            ASSERT_TRUE(mouse_verbs.contains(words[0])) << "nobody can " << step.toStdString();
            const auto& [action, button] = mouse_verbs[words[0]];
            const auto* cells = qobject_cast<const CellArray*>(&control);
            const QPoint place =
                cells != nullptr ? place_of(*cells, words[2].toInt()) : control.rect().center();
            mouse(action, control, place + QPoint(0, words.value(3) == "below" ? 20 : 0), button);
        }
    }

    // Does `action` in the window that opens by `steps`.
    void in_window_of(const QString& steps, const std::function<void(QDialog&)>& action) {
        in_window<QDialog>([&] { act(steps); }, action);
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

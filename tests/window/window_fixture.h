#pragma once

#include "ui/cirrava.h"

#include <QApplication>
#include <QStyleOptionSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace cirrava {

// Stands in for the user in front of the dialogs: answers from what is set here, and keeps what was
// asked and told.
struct Answers {
    std::optional<QString> path; // nothing: the user cancels
    std::optional<QColor> colour;
    bool yes = true;

    std::vector<FileQuestion> questions;
    QStringList prompts;
    QStringList told;

    Dialogs dialogs() {
        const auto choose_file = [this](const FileQuestion& question) {
            questions.push_back(question);
            return path;
        };
        return {.open = choose_file,
                .save = choose_file,
                .colour = [this](const QColor&) { return colour; },
                .ask =
                    [this](const QString& text, const QString&) {
                        prompts << text;
                        return yes;
                    },
                .tell = [this](const QString& text) { told << text; }};
    }
};

// Does `action` in the next modal window of type `Dialog`, as soon as it has the keyboard.
template <class Dialog> void in_next(std::function<void(Dialog&)> action) {
    QTimer::singleShot(0, [action] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == dialog; }));
        action(*dialog);
    });
}

// The real window on the offscreen platform, worked by real mouse and key events.
class WindowTest : public testing::Test {
protected:
    WindowTest() {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <class Control> Control& find(const QString& name) {
        auto* const control = window.findChild<Control*>(name);
        if (control == nullptr)
            throw std::runtime_error("no control " + name.toStdString());
        return *control;
    }

    QString box(int number) { return find<QLineEdit>(QString("Text%1").arg(number)).text(); }
    QStringList boxes() { return {box(1), box(2), box(3), box(4)}; }
    QString caption(const char* label) { return find<QLabel>(label).text(); }
    bool enabled(const char* control) { return find<QWidget>(control).isEnabled(); }
    QColor swatch() { return find<Swatch>("sample").colour(); }
    CellArray& thermal() { return find<CellArray>("thermal_char"); }
    CellArray& sea() { return find<CellArray>("Label2"); }
    CellArray& hvc() { return find<CellArray>("Label3"); }

    void press(const char* button) { QTest::mouseClick(&find<Button>(button), Qt::LeftButton); }

    static QPoint middle_of(CellArray& cells, int cell) {
        return cells.cell_box(cell).topLeft() + QPoint(3, 5);
    }
    static void click(CellArray& cells, int cell, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&cells, button, {}, middle_of(cells, cell));
    }
    static void select(CellArray& cells, int start, int end) {
        click(cells, start, Qt::LeftButton);
        click(cells, end, Qt::RightButton);
    }
    void apply(const char* preset) {
        press(preset);
        press("Command2");
    }

    // Where a part of a scroll bar is, in its own pixels.
    static QRect part(NumberBar& bar, QStyle::SubControl control) {
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = Qt::Horizontal;
        option.minimum = bar.minimum();
        option.maximum = bar.maximum();
        option.sliderPosition = option.sliderValue = bar.value();
        option.singleStep = option.pageStep = 1;
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, control, &bar);
    }

    Answers user;
    Cirrava window{user.dialogs()};
    QTemporaryDir folder;
};

} // namespace cirrava

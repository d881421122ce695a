#pragma once

#include "ui/cirrava.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
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
    QStringList heard; // what was asked and told, in order

    Dialogs dialogs() {
        const auto choose_file = [this](const FileQuestion& question) {
            const auto& [title, filter, folder, name] = question;
            heard << title + ": " + name + " of " + filter + " in " + folder;
            return path;
        };
        const auto ask = [this](const QString& text, const QString& title) {
            heard << title + ": " + text;
            return yes;
        };
        return {.open = choose_file,
                .save = choose_file,
                .colour =
                    [this](const QColor& initial) {
                        heard << initial.name();
                        return colour;
                    },
                .ask = ask,
                .tell = [this](const QString& text) { heard << text; }};
    }
};

// Does `action` in the next modal window of type `Dialog`, as soon as it has the keyboard, and
// closes the window where the action has not.
template <class Dialog> void in_next(const std::function<void(Dialog&)>& action) {
    QTimer::singleShot(0, [action] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            qFatal("another window than expected, or none, has opened");
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        action(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
}

// The control of that name.
template <class Control> Control& find_in(const QWidget& window, const QString& name) {
    auto* const control = window.findChild<Control*>(name);
    if (control == nullptr)
        qFatal("no control %s", qPrintable(name));
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

    template <class Control> Control& find(const QString& name) {
        return find_in<Control>(window, name);
    }
    CellArray& thermal() { return find<CellArray>("thermal_char"); }
    CellArray& sea() { return find<CellArray>("Label2"); }
    CellArray& hvc() { return find<CellArray>("Label3"); }
    NumberBar& brightness() { return find<NumberBar>("HScroll4"); }
    QString box(int number) { return find<QLineEdit>(QString("Text%1").arg(number)).text(); }
    QString caption(const QString& label) { return find<QLabel>(label).text(); }
    QColor swatch() { return find<Swatch>("sample").colour(); }

    void press(const QString& button) { QTest::mouseClick(&find<Button>(button), Qt::LeftButton); }
    static QPoint inside(CellArray& cells, int cell) {
        return cells.cell_box(cell).topLeft() + QPoint(3, 5);
    }
    static void select(CellArray& cells, int start, int end) {
        QTest::mouseClick(&cells, Qt::LeftButton, {}, inside(cells, start));
        QTest::mouseClick(&cells, Qt::RightButton, {}, inside(cells, end));
    }
    // Gives the marked cells the colour of a preset, by the key for it.
    void apply(int preset) {
        press(QString("color(%1)").arg(preset));
        QTest::keySequence(&window, Qt::CTRL | Qt::Key_Return);
    }

    User user;
    QTemporaryDir folder;
    Cirrava window{user.dialogs()};
};

} // namespace cirrava

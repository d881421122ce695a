#pragma once

class QApplication;

namespace cirrava {

// Has nothing repeated by mistake, in every window of the program. Enter counts once however long
// it is held: it would run through a file dialog and the question after it, and overwrite a file. A
// double click counts only where both of its presses were: the second press on the button of a
// message, which the first has closed, would reach what lies behind it. In one window, a second
// press on another button is a press of its own.
void ignore_false_repeats(QApplication& application);

} // namespace cirrava

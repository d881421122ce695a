#pragma once

class QApplication;

namespace cirrava {

// What the program asks of its process, before the QApplication is made, and of that, before any
// window is made.
void set_up_process();
void set_up_application(QApplication& application);

} // namespace cirrava

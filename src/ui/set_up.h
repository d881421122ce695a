#pragma once

class QApplication;

namespace cirrava {

// Sets up the process, before the QApplication is made.
void set_up_process();

// Sets up the QApplication, before any window is made.
void set_up_application(QApplication& application);

} // namespace cirrava

#pragma once

class QApplication;

namespace cirrava {

// Has Enter that is held down press nothing after its first press, in any window of the program: it
// would run through a dialog and its question, and overwrite a file.
void ignore_held_enter(QApplication& application);

} // namespace cirrava

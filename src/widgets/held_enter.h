#pragma once

class QApplication;

namespace cirrava {

// Makes Enter count once however long it is held, in every window of the program. A held Enter
// would run through a file dialog and the question after it, and overwrite a file.
void ignore_held_enter(QApplication& application);

} // namespace cirrava

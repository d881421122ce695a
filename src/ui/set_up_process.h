#pragma once

namespace cirrava {

// What the program asks of its process. Before the QApplication is made.
void set_up_process();

} // namespace cirrava

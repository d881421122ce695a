#pragma once

class QApplication;

namespace cirrava {

// Makes a double click count only where both of its presses were, in every window of the program.
// Otherwise the second of two quick presses, the first of which closed a message, would reach what
// lies behind it.
void ignore_split_double_clicks(QApplication& application);

} // namespace cirrava

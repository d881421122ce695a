#pragma once

class QWidget;

// The two help windows. Each call shows one in front of `parent`, made afresh, and returns when the
// user has closed it; until then the rest of the program takes no input.
namespace cirrava {

void show_palhelp(QWidget& parent); // how to use the program
void show_hvchelp(QWidget& parent); // what the HVC palette is

} // namespace cirrava

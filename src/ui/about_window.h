#pragma once

class QWidget;

namespace cirrava {

// Shows the About window in front of `parent`, made afresh, and returns when the user has closed
// it; until then the rest of the program takes no input.
void show_frmAbout(QWidget& parent);

} // namespace cirrava

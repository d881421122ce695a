#pragma once

#include "palette_files/file_actions.h"
#include "scale_editor/cell_array.h"

namespace cirrava {

// Write a one-row palette to a file that the user names. They show nothing when they succeed; the
// window stays as it is in every case.
void write_thermal(CommonDialog& cdlopen, const Dialogs& dialogs, const CellArray& cells);
void write_sea(CommonDialog& cdlopen, const Dialogs& dialogs, const CellArray& cells);

} // namespace cirrava

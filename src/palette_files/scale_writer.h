#pragma once

#include "palette_files/save_prompt.h"
#include "scale_editor/cell_array.h"

namespace cirrava {

// Writes a one-row palette (Thermal, Sea Surface) to a file that the user names. Shows nothing when
// it succeeds; the window stays as it is in every case.
class ScaleWriter {
public:
    explicit ScaleWriter(const FileDesk& desk) : desk_(desk) {}

    void write_thermal(const CellArray& cells);
    void write_sea(const CellArray& cells);

private:
    void write(const CellArray& cells, const SaveProposal& proposal, const QString& message_start);

    FileDesk desk_;
};

} // namespace cirrava

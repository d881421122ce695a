#include "palette_files/write_scale.h"

#include "palette_files/palette_image.h"

namespace cirrava {

namespace {

void write(FileDesk& desk, const CellArray& cells, const SaveProposal& proposal,
           const QString& message_start) {
    try {
        if (!choose_output(desk, proposal))
            return;
        BinaryFile file(file_path(desk.out_path), FileAccess::read_write);
        file.write(row_image(cells.colours()));
        file.sync();
        file.close();
    } catch (const Failure& failure) {
        tell_failure(desk, message_start, failure, " A problem occured during file creation");
    }
}

} // namespace

void write_thermal(FileDesk& desk, const CellArray& cells) {
    write(desk, cells, {.file_name = "thermal.bmp", .title = "Create Thermal"}, "Error# ");
}

void write_sea(FileDesk& desk, const CellArray& cells) {
    write(desk, cells, {.file_name = "sea.bmp", .title = "Create Sea Surface Palette"}, "Error # ");
}

} // namespace cirrava

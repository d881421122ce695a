#include "palette_files/scale_writer.h"

#include "palette_files/palette_image.h"

namespace cirrava {

void ScaleWriter::write_thermal(const CellArray& cells) {
    write(cells, {.file_name = "thermal.bmp", .title = "Create Thermal"}, "Error# ");
}

void ScaleWriter::write_sea(const CellArray& cells) {
    write(cells, {.file_name = "sea.bmp", .title = "Create Sea Surface Palette"}, "Error # ");
}

void ScaleWriter::write(const CellArray& cells, const SaveProposal& proposal,
                        const QString& message_start) {
    try {
        if (!choose_output(desk_, proposal))
            return;
        BinaryFile file(file_path(desk_.out_path), FileAccess::read_write);
        file.write(row_image(cells.colours()));
        file.close();
    } catch (const Failure& failure) {
        tell_failure(desk_.dialogs, message_start, failure,
                     " A problem occured during file creation");
    }
}

} // namespace cirrava

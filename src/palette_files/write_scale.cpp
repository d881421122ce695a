#include "palette_files/write_scale.h"

#include "palette_files/palette_image.h"

namespace cirrava {

namespace {

void write_scale(CommonDialog& cdlopen, const Dialogs& dialogs, const CellArray& cells,
                 const SaveProposal& proposal, const QString& message_start) {
    try {
        if (const auto out_path = choose_output(cdlopen, dialogs, proposal))
            write_palette(*out_path, row_image(cells.colours()));
    } catch (const Failure& failure) {
        tell_failure(dialogs, message_start, failure, " A problem occured during file creation");
    }
}

} // namespace

void write_thermal(CommonDialog& cdlopen, const Dialogs& dialogs, const CellArray& cells) {
    write_scale(cdlopen, dialogs, cells, {.file_name = "thermal.bmp", .title = "Create Thermal"},
                "Error# ");
}

void write_sea(CommonDialog& cdlopen, const Dialogs& dialogs, const CellArray& cells) {
    write_scale(cdlopen, dialogs, cells,
                {.file_name = "sea.bmp", .title = "Create Sea Surface Palette"}, "Error # ");
}

} // namespace cirrava

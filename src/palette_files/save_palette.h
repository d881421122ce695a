#pragma once

#include "platform/binary_file.h"
#include "widgets/common_dialog.h"

#include <QString>

namespace cirrava {

// What differs between the three palettes when they are saved.
struct SaveTexts {
    QString file_name;     // proposed, in the program's folder
    QString title;         // of the file dialog
    QString message_start; // when it fails; "Error#" and "Error # " are both as users know them
};

// Asks which file to write and whether to write it, and writes `image` to it. Returns whether it is
// written; the user has been told of any failure.
bool save_palette(CommonDialog& cdlopen, const Bytes& image, const SaveTexts& texts);

} // namespace cirrava

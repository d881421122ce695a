#include "palette_files/save_palette.h"

#include "platform/failure.h"

#include <QDir>

namespace cirrava {

namespace {

bool ask_whether_to(const QString& verb, CommonDialog& cdlopen) {
    const QString out_path = QDir::toNativeSeparators(cdlopen.FileName);
    return cdlopen.ask(verb + " " + out_path + "?", "Ready to create");
}

// Asks whether to write the file that was chosen. While the question stands, another program may
// make a file there: then that is asked about, too. Hidden files count as none, as users know it:
// they are written over after "Write" alone.
bool may_write(CommonDialog& cdlopen) {
    const auto path = cdlopen.file_path();
    if (plain_file_exists(path))
        return ask_whether_to("OVERWRITE", cdlopen);
    return ask_whether_to("Write", cdlopen) &&
           (!plain_file_exists(path) || ask_whether_to("OVERWRITE", cdlopen));
}

} // namespace

bool save_palette(CommonDialog& cdlopen, const Bytes& image, const SaveTexts& texts) {
    try {
        cdlopen.FileName = texts.file_name;
        cdlopen.DialogTitle = texts.title;
        cdlopen.ShowSave();
        if (!may_write(cdlopen))
            return false;
        BinaryFile file(cdlopen.file_path(), FileAccess::write);
        file.write(image);
        file.sync();
        file.close();
        return true;
    } catch (const Failure& failure) {
        cdlopen.tell(texts.message_start, failure, " A problem occured during file creation");
        return false;
    }
}

} // namespace cirrava

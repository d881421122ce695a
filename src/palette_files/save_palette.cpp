#include "palette_files/save_palette.h"

#include "platform/failure.h"

#include <QCoreApplication>
#include <QDir>

namespace cirrava {

namespace {

bool ask_whether_to_write(CommonDialog& cdlopen) {
    const bool exists = plain_file_exists(cdlopen.file_path());
    const QString verb(exists ? QLatin1StringView("OVERWRITE ") : QLatin1StringView("Write "));
    const QString out_path = QDir::toNativeSeparators(cdlopen.FileName);
    return cdlopen.ask(verb + out_path + "?", "Ready to create");
}

} // namespace

bool save_palette(CommonDialog& cdlopen, const Bytes& image, const SaveTexts& texts) {
    try {
        cdlopen.InitDir = QCoreApplication::applicationDirPath();
        cdlopen.FileName = texts.file_name;
        cdlopen.Filter = "*.bmp";
        cdlopen.DialogTitle = texts.title;
        cdlopen.CancelError = true;
        cdlopen.ShowSave();
        if (!ask_whether_to_write(cdlopen))
            return false;
        BinaryFile file(cdlopen.file_path(), FileAccess::read_write);
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

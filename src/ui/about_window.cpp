#include "ui/about_window.h"

#include "platform/failure.h"
#include "platform/system_info.h"
#include "ui/placer.h"
#include "widgets/dialogs.h"
#include "widgets/picture_box.h"
#include "widgets/sunken_border.h"

#include <QDialog>
#include <QFileInfo>
#include <QProcess>
#include <array>

namespace cirrava {

namespace {

class AboutWindow : public QDialog, private Placer {
public:
    explicit AboutWindow(QWidget& parent)
        : QDialog(&parent), Placer(*this, "About " + program_title, {5685, 5190}) {
        setObjectName("frmAbout");
        // The place is that of the client area, without the frame.
        setGeometry(QRect(to_pixels({2340, 1935}, logicalDpiX()).topLeft(), size()));

        const Look title{.text = qRgb(0, 0, 255), .font = {.points = 18}};
        control(picIcon_, "picIcon", "", {0, 0, 1140, 1500});
        label(lblTitle_, "lblTitle", program_title, {1560, 240, 2565, 480}, title);
        label(lblVersion_, "lblVersion", "Version " CIRRAVA_VERSION, {1560, 840, 1245, 225});
        label(Label1_, "Label1", "Quillmark", {3000, 840, 1365, 225});
        label(lblDescription_, "lblDescription", read_text(":/description.txt"),
              {1560, 1125, 3885, 1770});
        control(Line1_[1], "Line1(1)", "", {90, 3120, 5564, 15});
        control(Line1_[0], "Line1(0)", "", {120, 3240, 5549, 30});
        label(lblDisclaimer_, "lblDisclaimer", read_text(":/disclaimer.txt"),
              {120, 3360, 3870, 1665});
        button(cmdOK_, "cmdOK", "Exit ", {4320, 4560, 1260, 345});
        button(cmdSysInfo_, "cmdSysInfo", "System Info", {4320, 3600, 1245, 705});

        give_sunken_border(picIcon_);
        picIcon_.show_image(program_picture());
        picIcon_.set_zoom(shrink());
        for (QLabel* text : {&lblTitle_, &lblVersion_, &Label1_, &lblDescription_, &lblDisclaimer_})
            text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        // Together the lines look etched into the window.
        give_look(Line1_[1], {.ground = qRgb(128, 128, 128)});
        give_look(Line1_[0], {.ground = qRgb(255, 255, 255)});
        fit_captions(*this);

        cmdOK_.setDefault(true);
        cmdOK_.setFocus();
        connect(&cmdOK_, &Button::clicked, this, &QDialog::accept);
        connect(&cmdSysInfo_, &Button::clicked, this, &AboutWindow::StartSysInfo);
    }

private:
    void StartSysInfo() {
        try {
            const QFileInfo program(find_system_info_program());
            if (QProcess::startDetached(program.filePath(), {}))
                return;
        } catch (const Failure&) {
            // For the user, a folder that cannot be searched is one without the program.
        }
        qt_dialogs(*this).tell("System Information Is Unavailable At This Time");
    }

    PictureBox picIcon_;
    QLabel lblTitle_, lblVersion_, Label1_, lblDescription_, lblDisclaimer_;
    std::array<QWidget, 2> Line1_;
    Button cmdOK_, cmdSysInfo_;
};

} // namespace

void show_frmAbout(QWidget& parent) {
    AboutWindow(parent).exec();
}

} // namespace cirrava

#include "ui/about_window.h"

#include "platform/system_info.h"
#include "ui/placer.h"
#include "widgets/button.h"
#include "widgets/dialogs.h"
#include "widgets/line.h"
#include "widgets/sunken_border.h"

#include <QDialog>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <array>

namespace cirrava {

namespace {

constexpr char description[] =
    "This application can be used to generate 24 bit color palette files which can be used by "
    "Cirrava to produce color enhancements as per your requirements,  in Thermal, HVC and Sea "
    "Surface temperature categories.\n\n"
    "Please click the \"How to use\" button to learn more.\n\n"
    "Developed by Quillmark.";

constexpr char disclaimer[] =
    "This software comes with the usual warnings. It was developed as a hobby in free time and "
    "tested reasonably well. Please report faults, and send a note of appreciation if you like it. "
    "To communicate, please use Cirrava's user group. This is free software that comes with no "
    "warranty or claim.\n\n"
    "Good luck";

class AboutWindow : public QDialog {
public:
    explicit AboutWindow(QWidget& parent)
        : QDialog(&parent), placer_(*this, "About " + program_title, {5685, 5190}) {
        setObjectName("frmAbout");
        setWindowIcon(parent.windowIcon());
        move_to_position();
        place_picture();
        place_texts();
        place_lines();
        place_buttons();
        fit_captions(*this);
    }

private:
    void move_to_position() {
        const QPoint top_left = to_pixels({2340, 1935}, logicalDpiX()).topLeft();
        setGeometry(QRect(top_left, size())); // of the client area, without the frame
    }

    void place_picture() {
        placer_.place(picIcon_, "picIcon", {0, 0, 1140, 1500});
        give_sunken_border(picIcon_);
        picIcon_.setPixmap(program_picture(devicePixelRatioF(), placer_.shrink()));
    }

    void place_texts() {
        place_text(lblTitle_, "lblTitle", {1560, 240, 2565, 480}, program_title,
                   {.text = qRgb(0, 0, 255), .font = {.points = 18}});
        place_text(lblVersion_, "lblVersion", {1560, 840, 1245, 225}, "Version " CIRRAVA_VERSION,
                   {});
        place_text(Label1_, "Label1", {3000, 840, 1365, 225}, "Quillmark", {});
        place_text(lblDescription_, "lblDescription", {1560, 1125, 3885, 1770}, description,
                   {.text = qRgb(0, 0, 0)});
        place_text(lblDisclaimer_, "lblDisclaimer", {120, 3360, 3870, 1665}, disclaimer,
                   {.text = qRgb(0, 0, 0)});
    }

    void place_text(QLabel& label, const QString& name, const TwipRect& rect, const QString& text,
                    const Look& look) {
        placer_.place(label, name, rect);
        placer_.give_look(label, look);
        label.setTextFormat(Qt::PlainText);
        label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label.setWordWrap(true);
        label.setText(text);
    }

    // Together they look etched into the window.
    void place_lines() {
        placer_.place(Line1_[1], "Line1(1)", {90, 3120, 5564, 15});
        placer_.give_look(Line1_[1], {.text = qRgb(128, 128, 128)});
        placer_.place(Line1_[0], "Line1(0)", {120, 3240, 5549, 30});
        placer_.give_look(Line1_[0], {.text = qRgb(255, 255, 255)});
    }

    void place_buttons() {
        placer_.place(cmdOK_, "cmdOK", {4320, 4560, 1260, 345});
        cmdOK_.setText("Exit ");
        cmdOK_.setDefault(true);
        connect(&cmdOK_, &Button::clicked, this, &QDialog::accept);
        placer_.place(cmdSysInfo_, "cmdSysInfo", {4320, 3600, 1245, 705});
        cmdSysInfo_.setText("System Info");
        connect(&cmdSysInfo_, &Button::clicked, this, [this] { start_system_info(); });
        setTabOrder(&cmdOK_, &cmdSysInfo_);
        cmdOK_.setFocus();
    }

    void start_system_info() {
        const auto start = [](const std::filesystem::path& program) {
            return QProcess::startDetached(QFileInfo(program).filePath(), {});
        };
        const auto tell_unavailable = [this] {
            qt_dialogs(*this).tell("System Information Is Unavailable At This Time");
        };
        StartSysInfo({find_system_info_program, start, tell_unavailable});
    }

    const Placer placer_;
    QLabel picIcon_, lblTitle_, lblVersion_, Label1_, lblDescription_, lblDisclaimer_;
    std::array<Line, 2> Line1_;
    Button cmdOK_, cmdSysInfo_;
};

} // namespace

void show_frmAbout(QWidget& parent) {
    AboutWindow(parent).exec();
}

} // namespace cirrava

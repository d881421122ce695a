#pragma once

#include <QFont>
#include <QIcon>
#include <QImage>
#include <QRgb>
#include <QString>
#include <optional>

class QApplication;

// How the program looks, and its resources. It looks the same on every desktop: colours are judged
// against a neutral ground.
namespace cirrava {

enum class FontFamily { sans, narrow };

struct FontLook {
    FontFamily family = FontFamily::sans;
    double points = 8.25;
    bool bold = false;
    bool underlined = false;

    bool operator==(const FontLook&) const = default;
};

// How a control differs from the program's standard look.
struct Look {
    std::optional<QRgb> text = {};
    std::optional<QRgb> ground = {};
    FontLook font = {};
};

QFont to_font(const FontLook& look);

// The satellite above the earth, 72 x 96 pixels at twice their density.
QImage program_picture();

QIcon program_icon();

// A text among the program's resources, as ":/hvc.txt", without blanks at its ends.
QString read_text(const QString& file);

// Sets the Fusion style with one fixed light palette and the standard font. To be called before any
// window is made.
void set_program_look(QApplication& application);

} // namespace cirrava

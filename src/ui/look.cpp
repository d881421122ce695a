#include "ui/look.h"

#include <QApplication>
#include <QFile>
#include <QImageReader>
#include <QPalette>
#include <QProxyStyle>

namespace cirrava {

namespace {

// Outline fonts only, since captions are scaled and stretched. Liberation comes before Arial, which
// has the same widths, since more systems have it alone: the search for a missing family takes
// long.
QStringList families(FontFamily family) {
    if (family == FontFamily::narrow)
        return {"Liberation Sans Narrow", "Arial Narrow", "Arial", "DejaVu Sans"};
    return {"Liberation Sans", "Arial", "DejaVu Sans"};
}

// Reads `file` without detecting its format, for which Qt would load all its image plugins.
QImage read_png(const QString& file) {
    QImageReader reader(file, "PNG");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle() : QProxyStyle("Fusion") {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        switch (hint) {
        case SH_ScrollBar_LeftClickAbsolutePosition: // the track moves by one step, never jumps
        case SH_ScrollBar_MiddleClickAbsolutePosition:
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_FocusFrame_Mask: // which would leave out the control
            return 0;
        case SH_FocusFrame_AboveWidget:
            return 1;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
        }
    }
};

QPalette light_palette() {
    QPalette palette(QColor(240, 240, 240)); // black texts and the shades of the bevels follow
    palette.setColor(QPalette::Highlight, QColor(0, 95, 184));
    palette.setColor(QPalette::Button, QColor(250, 250, 250));
    const QColor edge(120, 120, 120); // 3.9 to 1 against the ground
    palette.setColor(QPalette::Mid, edge);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(QPalette::Disabled, role, edge);
    palette.setColor(QPalette::Disabled, QPalette::Button, QColor(240, 240, 240));
    palette.setColor(QPalette::Disabled, QPalette::Mid, QColor(190, 190, 190));
    return palette;
}

} // namespace

QFont to_font(const FontLook& look) {
    QFont font;
    font.setFamilies(families(look.family));
    font.setPointSizeF(look.points);
    font.setBold(look.bold);
    font.setUnderline(look.underlined);
    return font;
}

QImage program_picture() { // in a format that Qt scales by itself
    return read_png(":/picture@2x.png").convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QIcon program_icon() {
    QIcon icon;
    for (const int size : {16, 32, 64}) // title bars need no larger one
        icon.addPixmap(QPixmap::fromImage(read_png(QString(":/icon-%1.png").arg(size))));
    return icon;
}

QString read_text(const QString& file) {
    QFile resource(file);
    if (!resource.open(QIODevice::ReadOnly))
        qFatal("There is no text %s.", qPrintable(file));
    return QString::fromUtf8(resource.readAll()).trimmed();
}

void set_program_look(QApplication& application) {
    QApplication::setStyle(new ProgramStyle); // the application owns it
    QApplication::setPalette(light_palette());
    application.setFont(to_font({}));
}

} // namespace cirrava

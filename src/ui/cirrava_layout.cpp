#include "ui/cirrava_layout.h"

#include "scale_editor/qt_values.h"
#include "ui/cirrava_tables.h"
#include "ui/placer.h"
#include "widgets/spoken_colour.h"

#include <algorithm>

namespace cirrava {

namespace {

class Builder {
public:
    Builder(CirravaControls& controls, const Placer& placer)
        : controls_(controls), placer_(placer) {}

    template <class Control, std::size_t count>
    void place(const tables::Row<Control> (&rows)[count]) {
        for (const auto& row : rows) {
            Control& control = controls_.*row.control;
            placer_.place(control, QString::fromLatin1(row.name), row.rect);
            finish(control, QString::fromLatin1(row.caption), row.look);
        }
    }

    // Tick i names cell 20 * i, the last one the last cell.
    template <std::size_t count>
    void place_ticks(std::array<QLabel, count>& ticks, const char* name, ScaleKind kind,
                     const TwipRect (&rects)[count]) {
        for (std::size_t i = 0; i < count; ++i) {
            const int cell = std::min(20 * static_cast<int>(i), cell_count(kind) - 1);
            placer_.place(ticks[i], member_name(name, i), rects[i]);
            finish(ticks[i], to_qt(tick_text(kind, cell)), {.text = tables::black});
        }
    }

    void place_presets() {
        for (std::size_t i = 0; i < controls_.color.size(); ++i) {
            const QColor colour = to_qt(tables::preset_colours[i]);
            Button& preset = controls_.color[i];
            placer_.place(preset, member_name("color", i),
                          {2040 + 240 * tables::preset_slot(static_cast<int>(i)), 7200, 255, 255});
            preset.set_face(colour);
            preset.setAccessibleName(QString("Preset %1: ").arg(i) + spoken_colour(colour));
        }
    }

    void place_scales() {
        for (const tables::ScaleRow& row : tables::scales) {
            CellArray& cells = controls_.*row.control;
            placer_.place(cells, QString::fromLatin1(row.name), {});
            cells.setAccessibleName(QString::fromLatin1(row.spoken));
            cells.lay_out(row.top, placer_.dpi());
            cells.raise(); // above the temperatures between its rows
        }
    }

private:
    static QString member_name(const char* array, std::size_t index) {
        return QString("%1(%2)").arg(QLatin1StringView(array)).arg(index);
    }

    void finish(QLabel& label, const QString& caption, const Look& look) {
        placer_.give_look(label, look);
        label.setTextFormat(Qt::PlainText);
        label.setWordWrap(true);
        label.setText(caption);
    }

    void finish(Button& button, const QString& caption, const Look& look) {
        placer_.give_look(button, {.font = look.font});
        if (look.ground)
            button.set_face(*look.ground);
        button.setText(caption);
    }

    void finish(QLineEdit& box, const QString& spoken, const Look& look) {
        placer_.give_look(box, look);
        box.setReadOnly(true);
        box.setAccessibleName(spoken);
    }

    void finish(QWidget& control, const QString& spoken, const Look&) {
        control.setAccessibleName(spoken);
    }

    CirravaControls& controls_;
    const Placer& placer_;
};

// The focus starts at the first control of the order.
void set_tab_order(CirravaControls& c) {
    QWidget* last = &c.Text1;
    last->setFocus();
    const auto then = [&last](QWidget& next) {
        QWidget::setTabOrder(last, &next);
        last = &next;
    };
    for (QWidget* next : std::initializer_list<QWidget*>{
             &c.Text2, &c.Text3, &c.Text4, &c.HScroll1, &c.HScroll2, &c.HScroll3, &c.sample,
             &c.Command2, &c.Command3, &c.Command4, &c.Command5, &c.Command6, &c.thermal_command,
             &c.sea_command, &c.hvc_command})
        then(*next);
    for (Button& preset : c.color)
        then(preset);
    for (QWidget* next :
         std::initializer_list<QWidget*>{&c.pickcolor, &c.hvc_help, &c.Picture1, &c.HScroll4,
                                         &c.Command1, &c.thermal_butt, &c.Sea_butt, &c.hvc_butt})
        then(*next);
}

} // namespace

void lay_out(CirravaControls& controls, QWidget& window) {
    window.setObjectName("Cirrava");
    window.setWindowIcon(program_icon());
    const Placer placer(window, "Cirrava PAL", tables::client_area);

    Builder builder(controls, placer);
    builder.place(tables::labels);
    builder.place(tables::arrows);
    builder.place(tables::lines);
    builder.place(tables::buttons);
    builder.place(tables::celsius_boxes);
    builder.place(tables::fahrenheit_boxes);
    builder.place(tables::bars);
    builder.place(tables::swatches);
    builder.place(tables::picture_boxes);
    builder.place_ticks(controls.T1C, "T1C", ScaleKind::thermal, tables::thermal_ticks);
    builder.place_ticks(controls.SS, "SS", ScaleKind::sea, tables::sea_ticks);
    builder.place_ticks(controls.hvc, "hvc", ScaleKind::hvc, tables::hvc_ticks);
    builder.place_presets();
    builder.place_scales();

    controls.Image1.setPixmap(program_picture(window.devicePixelRatioF(), placer.shrink()));
    controls.Picture1.set_zoom(placer.shrink());
    controls.Image1.setAccessibleName("A satellite above the earth");
    const int off_the_picture = controls.Label1.fontMetrics().averageCharWidth() / 2;
    controls.Label1.setContentsMargins(off_the_picture, 0, 0, 0);
    controls.Command2.setToolTip("Click to apply color to range selected");
    set_tab_order(controls);
}

} // namespace cirrava

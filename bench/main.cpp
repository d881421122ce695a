#include "promises.h"
#include "ui/look.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

int main(int argc, char* argv[]) {
    QApplication::setDesktopSettingsAware(false);
    QApplication application(argc, argv);
    cirrava::dress(application);
    const QTemporaryDir folder; // for the files that are written
    QDir::setCurrent(folder.path());

    benchmark::Initialize(&argc, argv);
    promises::Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    const auto milliseconds = [&](const char* name) { return medians[name].milliseconds; };
    promises::tell("Building the HVC image, against a copy of its bytes",
                   milliseconds("build_hvc_image") / milliseconds("copy_hvc_image"), "times", 4);
    promises::tell("Writing the HVC file, against one fwrite of its bytes",
                   milliseconds("write_hvc_file") / milliseconds("fwrite_hvc_file"), "times", 1.5);
    promises::tell("Apply to all 320 Thermal cells, with the repaint",
                   milliseconds("apply_to_all_thermal_cells"), "ms", 1);
    promises::tell("One brightness step, both files and the preview included",
                   milliseconds("brightness_step"), "ms", 4);
    return medians.failed ? 1 : 0;
}

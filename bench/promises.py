"""Measures what is promised, and tells it beside its limits. promises.py FOLDER-OF-THE-BENCHMARKS"""

import os
import statistics
import subprocess
import sys
import time

folder = sys.argv[1]


def start(window):
    """The milliseconds from the start of a program to its first painted frame, and its peak in MiB."""
    program = f"{folder}/start_{window}"
    reading, writing = os.pipe()
    begin = time.perf_counter()
    process = os.posix_spawn(
        program, [program], os.environ, file_actions=[(os.POSIX_SPAWN_DUP2, writing, 1)]
    )
    os.close(writing)
    painted = os.read(reading, 1)
    milliseconds = 1000 * (time.perf_counter() - begin)
    os.close(reading)
    _, status, usage = os.wait4(process, 0)
    if not painted or status != 0:
        sys.exit(f"{program} does not start")
    return milliseconds, usage.ru_maxrss / 1024


def tell(what, figure, unit, limit):
    print(f"{what:66} {figure:6.2f} {unit:5} limit {limit:4.2f}  {'kept' if figure <= limit else 'not kept'}")


rounds = [(start("LineWindow"), start("Cirrava")) for _ in range(101)]
(line_time, line_peak), (time_, peak) = [
    [statistics.median(values) for values in zip(*results)] for results in zip(*rounds)
]
actions = dict(line.split() for line in subprocess.check_output(f"{folder}/bench", text=True).splitlines())
ms = {name: float(value) for name, value in actions.items()}

print(f"The start takes {time_:.1f} ms and {peak:.1f} MiB.")
tell("Start to the first painted frame, against the window with one line", time_ / line_time, "times", 1.25)
tell("Peak memory of that", peak / line_peak, "times", 1.1)
tell("Building the HVC image", ms["build_image"], "ms", 0.25)
tell("Writing the HVC file, against one fwrite of its bytes", ms["write_file"] / ms["fwrite_file"], "times", 1.5)
tell("Apply to all 320 Thermal cells, with the repaint", ms["apply"], "ms", 1)
tell("One brightness step, both files and the preview included", ms["brightness_step"], "ms", 4)

"""The running program's window on the accessibility bus. Run as a program, marks and colours a cell,
listens whether screen readers are told of each step, and presses the Quit button.

Waits until the program is on the bus.
"""

import sys
import time
from functools import partial

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib


def children(node):
    found = [node.get_child_at_index(i) for i in range(node.get_child_count())]
    return [child for child in found if child is not None]  # one that has ended meanwhile


def window():
    for _ in range(600):
        for program in children(Atspi.get_desktop(0)):
            if program.get_name() == "cirrava-pal" and children(program):
                return children(program)[0]
        time.sleep(0.1)
    sys.exit("The program is not on the accessibility bus.")


def expect(event_type, node, act):
    """Does `act` and fails unless screen readers are told of such an event of the node."""
    loop = GLib.MainLoop()
    told = []

    def listen(event):
        if event.source.get_name() == node.get_name():
            told.append(event)
            loop.quit()

    listener = Atspi.EventListener.new(listen)
    listener.register(event_type)
    GLib.timeout_add_seconds(10, loop.quit)
    act()
    if not told:
        loop.run()
    listener.deregister(event_type)
    if not told:
        sys.exit(f"Screen readers are not told of {event_type} of {node.get_name()}.")


if __name__ == "__main__":
    controls = {control.get_name(): control for control in children(window())}
    scale = controls["Thermal scale"]
    cell = scale.get_child_at_index(5)
    for action, side in (0, "Start"), (1, "End"):  # marks the cell as such
        box = controls[f"{side}, degrees Celsius"]
        expect("object:property-change:accessible-value", box, partial(cell.do_action, action))
    controls["Preset 10: red 255, green 0, blue 0"].do_action(0)
    expect("object:property-change:accessible-description", scale, lambda: controls["Apply Color"].do_action(0))
    controls["Quit"].do_action(0)

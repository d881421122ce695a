"""The running program's window on the accessibility bus. Run as a program, colours a cell, listens
whether screen readers are told of it, and presses the Quit button.

Fails while the program is not on the bus.
"""

import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib


def children(node):
    return [node.get_child_at_index(i) for i in range(node.get_child_count())]


def window():
    [program] = [p for p in children(Atspi.get_desktop(0)) if p.get_name() == "cirrava-pal"]
    return program.get_child_at_index(0)


def expect_new_description(node, act):
    """Does `act` and fails unless screen readers are told of another description of the node."""
    loop = GLib.MainLoop()
    told = []

    def listen(event):
        if event.source.get_name() == node.get_name():
            told.append(event)
            loop.quit()

    listener = Atspi.EventListener.new(listen)
    listener.register("object:property-change:accessible-description")
    GLib.timeout_add_seconds(10, loop.quit)
    act()
    loop.run()
    if not told:
        sys.exit("Screen readers are not told of new colours.")


if __name__ == "__main__":
    controls = {control.get_name(): control for control in children(window())}
    cell = controls["Thermal scale"].get_child_at_index(5)
    for action in (0, 1):  # mark as start, mark as end
        cell.do_action(action)
    controls["Preset 10: red 255, green 0, blue 0"].do_action(0)
    expect_new_description(controls["Thermal scale"], lambda: controls["Apply Color"].do_action(0))
    controls["Quit"].do_action(0)

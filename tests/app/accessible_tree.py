"""What a screen reader finds in a program: accessible_tree.py NAME prints its tree, a line an object, without what does not show;
accessible_tree.py NAME --listen prints what the program announces. For Debian's own python3, which has pyatspi."""

import sys
import time

import pyatspi
from gi.repository import GLib

TOLD = {pyatspi.STATE_CHECKED: "checked", pyatspi.STATE_SELECTED: "selected", pyatspi.STATE_FOCUSED: "focused"}


def application(name):
    for _ in range(200):
        for found in pyatspi.Registry.getDesktop(0):
            if found and found.name == name and found.childCount:
                return found
        time.sleep(0.05)
    sys.exit(f"{name} is not there")


def line(one):
    states = one.getState()
    words = [f"{one.getRoleName()} '{one.name}'"]
    if one.description:
        words.append(f"({one.description})")
    try:
        value = one.queryValue()
        words.append(f"{value.currentValue:g} of {value.minimumValue:g} to {value.maximumValue:g}")
    except NotImplementedError:
        pass
    words += [word for state, word in TOLD.items() if states.contains(state)]
    if not states.contains(pyatspi.STATE_ENABLED):
        words.append("disabled")
    return " ".join(words)


def show(one, depth):
    try:
        if depth == 0 or one.getState().contains(pyatspi.STATE_SHOWING):
            print("  " * depth + line(one))
            for child in one:
                if child:
                    show(child, depth + 1)
    except GLib.GError as error:
        # It has gone while the rest was looked at.
        if "No such object" not in error.message:
            raise


if "--listen" in sys.argv:
    pyatspi.Registry.registerEventListener(lambda event: print(event.any_data, flush=True), "object:announcement")
    print("listening", flush=True)
    pyatspi.Registry.start()
else:
    for window in application(sys.argv[1]):
        show(window, 0)

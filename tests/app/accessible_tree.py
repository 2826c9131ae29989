"""What a screen reader finds in a program: accessible_tree.py NAME prints its tree, a line an object, without what does not show;
accessible_tree.py NAME --press TEXT presses what shows and is called so; accessible_tree.py NAME --listen prints what the program announces; with --keep it keeps hold of all objects, seen or not, and for each
line of its input prints what they, and those that are there now, say and offer: a word a line, then an empty one. For Debian's own
python3, which has pyatspi."""

import sys
import time

import gi
import pyatspi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

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
        words.append(f"{value.currentValue:.4g} of {value.minimumValue:g} to {value.maximumValue:g}")
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


def walk(one):
    try:
        yield one
        for child in one:
            if child:
                yield from walk(child)
    except GLib.GError:
        pass


def words(one):
    """All that an object says and offers, whether it is seen or not."""
    try:
        yield from (one.name, one.description)
        interfaces = one.get_interfaces()
        if "Text" in interfaces:
            yield one.queryText().getText(0, -1)
        if "Value" in interfaces and one.queryValue().maximumValue:
            yield f"{one.queryValue().currentValue:g} of {one.queryValue().maximumValue:g}"
        if "Action" in interfaces:
            yield from (one.queryAction().getName(i) for i in range(one.queryAction().nActions))
        yield from (told for state, told in TOLD.items() if one.getState().contains(state))
    except GLib.GError:
        pass


if "--keep" in sys.argv:
    tavi = application(sys.argv[1])
    tavi.set_cache_mask(Atspi.Cache.NONE)
    kept = list(walk(tavi))
    print(len(kept), flush=True)
    for _ in sys.stdin:
        said = {word for one in [*kept, *walk(tavi)] for word in words(one)} - {""}
        print(*sorted(said), "", sep="\n", flush=True)
elif "--press" in sys.argv:
    called = sys.argv[-1]
    shown = [one for one in walk(application(sys.argv[1])) if one.name == called and one.getState().contains(pyatspi.STATE_SHOWING)]
    actions = [one.queryAction() for one in shown if "Action" in one.get_interfaces()]
    sys.exit(0 if actions and actions[-1].doAction(0) else f"{called} cannot be pressed")
elif "--listen" in sys.argv:
    pyatspi.Registry.registerEventListener(lambda event: print(event.any_data, flush=True), "object:announcement")
    print("listening", flush=True)
    pyatspi.Registry.start()
else:
    for window in application(sys.argv[1]):
        show(window, 0)

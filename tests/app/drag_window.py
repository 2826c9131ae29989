"""Another program's window for real drags: drag_window.py X PATH takes what is dropped on it, and gives PATH away; it prints what
it is offered, what it gets, and what becomes of what it gave. For Debian's own python3, which has gi."""

import pathlib
import sys

import gi

for library in ("Gdk", "Gtk"):
    gi.require_version(library, "3.0")
from gi.repository import Gdk, Gtk

ALL = Gdk.DragAction.COPY | Gdk.DragAction.MOVE | Gdk.DragAction.LINK


def say(*words):
    print(*words, flush=True)


window = Gtk.Window(type=Gtk.WindowType.POPUP)
window.set_default_size(200, 400)
window.move(int(sys.argv[1]), 100)
window.drag_dest_set(Gtk.DestDefaults.ALL, [], ALL)
window.drag_dest_add_uri_targets()
window.connect("drag-motion", lambda _, context, *at: say("offered", context.get_actions().value_nicks))
window.connect("drag-data-received", lambda _, context, x, y, data, *more: say("got", data.get_uris()))
window.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], ALL)
window.drag_source_add_uri_targets()
window.connect("drag-data-get", lambda _, context, data, *more: data.set_uris([pathlib.Path(sys.argv[2]).as_uri()]))
window.connect("drag-end", lambda _, context: say("gave", context.get_selected_action().value_nicks))
window.connect("drag-data-delete", lambda *_: say("asked to delete"))
window.show()
Gtk.main()

#!/usr/bin/python3
"""A client of the accessibility bus, as a screen reader is one: it knows what it is told there, and no more.

Reads requests from standard input and answers on standard output, one JSON object a line:

    {"do": "find", ...}     the first object on screen for which all given properties hold (name, role, description,
                            focused): its properties and its text; null if there is none
    {"do": "press", ...}    the same object's first action is done
    {"do": "rows", ...}     the texts of the cells of that table, row by row
    {"do": "heard"}         what was announced since the last time: changes of names, descriptions and texts, what has
                            appeared, and what has got the focus
"""
import json
import os
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402 (the version comes first)

PROGRAM = "sketcher"
EVENTS = ("object:property-change:accessible-name", "object:property-change:accessible-description",
          "object:state-changed:showing", "object:state-changed:focused", "object:text-changed:insert")
heard = []


def has(node, state):
    return node.get_state_set().contains(state)


def text_of(node):
    text = node.get_text_iface()
    return Atspi.Text.get_text(text, 0, -1) if text else ""


# Each is asked of the program anew.
PROPERTIES = {
    "role": Atspi.Accessible.get_role_name,
    "name": Atspi.Accessible.get_name,
    "description": Atspi.Accessible.get_description,
    "focused": lambda node: has(node, Atspi.StateType.FOCUSED),
    "checked": lambda node: has(node, Atspi.StateType.CHECKED),
    "enabled": lambda node: has(node, Atspi.StateType.ENABLED),
    "text": text_of,
}


def describe(node):
    return {name: read(node) for name, read in PROPERTIES.items()}


def matches(node, wanted):
    return all(read(node) == wanted[name] for name, read in PROPERTIES.items() if name in wanted)


def children(node):
    return filter(None, (node.get_child_at_index(i) for i in range(node.get_child_count())))


def ask(question, *arguments):
    """The answer; None if what is asked has gone. The desktop lists a program for a while after its end."""
    try:
        return question(*arguments)
    except GLib.Error:
        return None


def programs():
    return [child for child in children(Atspi.get_desktop(0)) if ask(child.get_name) == PROGRAM]


def find(node, wanted):
    if matches(node, wanted) and has(node, Atspi.StateType.SHOWING):
        return node
    if has(node, Atspi.StateType.MANAGES_DESCENDANTS):
        return None
    for child in children(node):
        found = find(child, wanted)
        if found:
            return found
    return None


def find_anywhere(wanted):
    for program in programs():
        found = ask(find, program, wanted)
        if found:
            return found
    return None


def rows(table):
    iface = table.get_table_iface()
    return [[Atspi.Table.get_accessible_at(iface, row, column).get_name()
             for column in range(Atspi.Table.get_n_columns(iface))] for row in range(Atspi.Table.get_n_rows(iface))]


def answer(request):
    wanted = {key: value for key, value in request.items() if key != "do"}
    if request["do"] == "heard":
        told = list(heard)
        heard.clear()
        return told
    found = find_anywhere(wanted)
    if not found:
        return None
    if request["do"] == "press":
        return found.get_action_iface() is not None and Atspi.Action.do_action(found, 0)
    return rows(found) if request["do"] == "rows" else describe(found)


def on_event(event):
    if event.type.startswith("object:state-changed") and not event.detail1:
        return
    try:
        heard.append({"event": event.type.split(":", 1)[1], **describe(event.source)})
    except GLib.Error:
        pass  # It is gone already.


def on_request(channel, _condition):
    line = channel.readline()
    if not line:
        loop.quit()
        return False
    print(json.dumps(ask(answer, json.loads(line))), flush=True)
    return True


Atspi.init()
# What was cached may be out of date before the event that says so is handled.
Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)
listener = Atspi.EventListener.new(on_event)
for name in EVENTS:
    listener.register(name)
loop = GLib.MainLoop()
GLib.io_add_watch(os.fdopen(sys.stdin.fileno(), buffering=1), GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP,
                  on_request)
loop.run()

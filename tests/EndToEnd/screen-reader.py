"""Uses the program as a screen reader does, over the accessibility bus.

usage: screen-reader.py PROGRAM SIMULATOR

Starts PROGRAM, writes down what the list of simulators says, presses the button in SIMULATOR's row,
writes down the box and answers it, and writes down the list again. Status 77 where the bus or its
Python binding is missing.
"""
import subprocess
import sys

try:
    import pyatspi
    from gi.repository import GLib
except ImportError:
    sys.exit(77)


def below(accessible):
    """Everything below, from the top; what goes away meanwhile is left out."""
    for index in range(accessible.childCount):
        child = accessible.getChildAtIndex(index)
        if child is None:
            continue
        yield child
        yield from below(child)


def seen(accepts):
    """The first accessible of any program that is accepted; None without one."""
    for application in pyatspi.Registry.getDesktop(0):
        try:
            for accessible in below(application):
                if accepts(accessible):
                    return accessible
        except Exception:  # it went away while it was looked at; the next look is another
            pass
    return None


def find(what, accepts):
    """The same, waited for. Qt announces no new window on the bus, so it is looked for in turn."""
    late = GLib.timeout_add_seconds(30, sys.exit, f"no {what}")
    looks = GLib.timeout_add(50, lambda: True)
    while (accessible := seen(accepts)) is None:
        GLib.MainContext.default().iteration(True)
    GLib.source_remove(looks)
    GLib.source_remove(late)
    return accessible


def named(role, name):
    return find(f"{role} {name}", lambda each: each.getRoleName() == role and each.name == name)


def press(button):
    action = button.queryAction()
    names = [action.getName(index) for index in range(action.nActions)]
    action.doAction(names.index("Press"))


def say(*words):
    print(": ".join(words), flush=True)


def say_rows(simulators):
    for row in simulators:
        say(row.getRoleName(), row.name, row.description)
        for part in row:
            say(f"- {part.getRoleName()}", part.name)


def main():
    executable, simulator = sys.argv[1:]
    program = subprocess.Popen([executable])
    try:
        simulators = named("list", "Simulators")
        find("row", lambda each: each.parent == simulators)
        say_rows(simulators)
        press(named("push button", f"Install Orbwell: {simulator}"))
        box = find("box", lambda each: each.getRoleName() == "alert")
        say(box.getRoleName(), box.name)
        for part in below(box):
            if part.getRoleName() == "label" and part.name:
                say(f"- {part.getRoleName()}", part.name)
        press(find("OK", lambda each: each.name == "OK"))
        named("push button", f"Uninstall Orbwell: {simulator}")
        say_rows(named("list", "Simulators"))
        press(named("push button", "Close"))
        say("status", str(program.wait(30)))
    finally:
        program.kill()


main()

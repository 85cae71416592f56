"""Uses the program as a screen reader does, over the accessibility bus.

usage: screen-reader.py PROGRAM SIMULATOR

Starts PROGRAM, writes down what the list of simulators says, presses the button in SIMULATOR's row,
writes down the box and answers it, and writes down the list again. Status 77 where the bus or its
Python binding is missing.
"""
import subprocess
import sys
import time

try:
    import pyatspi
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


def find(what, accepts):
    """The first accessible of the program that is accepted, waited for."""
    deadline = time.monotonic() + 30
    while time.monotonic() < deadline:
        for application in pyatspi.Registry.getDesktop(0):
            try:
                for accessible in below(application):
                    if accepts(accessible):
                        return accessible
            except Exception:  # it went away while it was looked at; the next look is another
                pass
        time.sleep(0.05)
    sys.exit(f"no {what}")


def named(role, name):
    return find(f"{role} {name}", lambda seen: seen.getRoleName() == role and seen.name == name)


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
        find("row", lambda seen: seen.parent == simulators)
        say_rows(simulators)
        press(named("push button", f"Install Orbwell: {simulator}"))
        box = find("box", lambda seen: seen.getRoleName() == "alert")
        say(box.getRoleName(), box.name)
        for part in below(box):
            if part.getRoleName() == "label" and part.name:
                say(f"- {part.getRoleName()}", part.name)
        press(find("OK", lambda seen: seen.name == "OK"))
        named("push button", f"Uninstall Orbwell: {simulator}")
        say_rows(named("list", "Simulators"))
        press(named("push button", "Close"))
        say("status", str(program.wait(30)))
    finally:
        program.kill()


main()

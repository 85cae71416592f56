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


class Listener:
    """Finds what a program shows, as long as the program runs."""

    def __init__(self, program):
        self.program = program

    def find(self, what, accepts):
        """The first accessible that is accepted, waited for; at most 30 seconds."""
        for _ in range(600):
            accessible = seen(accepts)
            if accessible is not None:
                return accessible
            try:
                sys.exit(f"no {what}; the program ended with {self.program.wait(timeout=0.05)}")
            except subprocess.TimeoutExpired:
                pass
        sys.exit(f"no {what}")

    def named(self, role, name):
        return self.find(
            f"{role} {name}", lambda each: each.getRoleName() == role and each.name == name
        )


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
    listener = Listener(program)
    try:
        simulators = listener.named("list", "Simulators")
        listener.find("row", lambda each: each.parent == simulators)
        say_rows(simulators)
        press(listener.named("push button", f"Install Orbwell: {simulator}"))
        box = listener.find("box", lambda each: each.getRoleName() == "alert")
        say(box.getRoleName(), box.name)
        for part in below(box):
            if part.getRoleName() == "label" and part.name:
                say(f"- {part.getRoleName()}", part.name)
        press(listener.find("OK", lambda each: each.name == "OK"))
        listener.named("push button", f"Uninstall Orbwell: {simulator}")
        say_rows(listener.named("list", "Simulators"))
        press(listener.named("push button", "Close"))
        say("status", str(program.wait(30)))
    finally:
        program.kill()


main()

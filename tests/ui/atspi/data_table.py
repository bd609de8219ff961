#!/usr/bin/python3
"""The data table as a screen reader meets it, through AT-SPI.

Starts its own X server, D-Bus session bus and AT-SPI bus in a temporary folder,
the program (self-voicing on, its speech written to a log, no sound card) with a
settings file whose f(x) is x^2-4, and presses F4. Then, from the accessible tree
alone: the table of data set 1 holds 502 rows (501 points and the row for a new
one) and five titled columns; every cell is named with its column ("f(x) = 96");
Tab reaches the table and Down moves the focus to the next row's cell, which the
screen reader is told and the program says; the program is still running.

  data_table.py SONALYX SONALYX_CLI

Exit status 0 when all holds, 1 when something does not, 77 when the tools are
missing (Debian: xvfb xdotool dbus at-spi2-core python3-pyatspi).
"""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SKIP = 77
FAILURES = []


def check(what, ok, detail=""):
    print("%s %s%s" % ("ok  " if ok else "FAIL", what, (": " + detail) if detail and not ok else ""))
    if not ok:
        FAILURES.append(what)


def free_display():
    for number in range(120, 160):
        if not os.path.exists("/tmp/.X%d-lock" % number) and not os.path.exists("/tmp/.X11-unix/X%d" % number):
            return number
    return None


class Desktop:
    """X, D-Bus and AT-SPI of our own; everything started is ended by its pid."""

    def __init__(self):
        self.dir = tempfile.mkdtemp(prefix="sonalyx-atspi-")
        self.procs = []

    def spawn(self, argv, env=None, **kwargs):
        proc = subprocess.Popen(argv, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **kwargs)
        self.procs.append(proc)
        return proc

    def start(self):
        number = free_display()
        if number is None:
            raise RuntimeError("no free X display")
        display = ":%d" % number
        xvfb = self.spawn(["Xvfb", display, "-screen", "0", "1280x1024x24", "-nolisten", "tcp"])
        deadline = time.time() + 10
        while not os.path.exists("/tmp/.X11-unix/X%d" % number):
            if xvfb.poll() is not None or time.time() > deadline:
                raise RuntimeError("Xvfb did not start on " + display)
            time.sleep(0.05)
        run = os.path.join(self.dir, "run")
        os.makedirs(run, mode=0o700)
        env = {k: v for k, v in os.environ.items()
               if k not in ("DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        env.update({"DISPLAY": display, "XDG_RUNTIME_DIR": run, "XDG_CONFIG_HOME": os.path.join(self.dir, "config"),
                    "GSETTINGS_BACKEND": "memory", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_ACCESSIBILITY": "1"})
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1"], env=env,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, start_new_session=True)
        bus.leads_group = True
        self.procs.append(bus)
        env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        self.env = env
        for key in ("DISPLAY", "XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS", "GSETTINGS_BACKEND"):
            os.environ[key] = env[key]
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        # Asking for the AT-SPI bus starts it (D-Bus activation), as a desktop does.
        subprocess.run(["dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
                        "org.a11y.Bus.GetAddress"], env=env, capture_output=True, timeout=20)

    def close(self):
        for proc in reversed(self.procs):
            if proc.poll() is None:
                try:
                    if getattr(proc, "leads_group", False):
                        # The session bus and the AT-SPI bus it started share its own group.
                        os.killpg(proc.pid, signal.SIGTERM)
                    else:
                        proc.terminate()
                except (ProcessLookupError, PermissionError):
                    pass
                try:
                    proc.wait(timeout=5)
                except subprocess.TimeoutExpired:
                    proc.kill()
        shutil.rmtree(self.dir, ignore_errors=True)


def pump(seconds):
    from gi.repository import GLib
    context = GLib.MainContext.default()
    end = time.time() + seconds
    while time.time() < end:
        while context.iteration(False):
            pass
        time.sleep(0.01)


def find(acc, test, depth=0):
    """The first object below `acc` that passes `test`; tables are not searched
    inside (their cells are reached through the table interface)."""
    if test(acc):
        return acc
    if depth > 40 or acc.getRoleName() == "table":
        return None
    for index in range(acc.childCount):
        child = acc.getChildAtIndex(index)
        if child is not None:
            found = find(child, test, depth + 1)
            if found is not None:
                return found
    return None


def main():
    if len(sys.argv) != 3:
        print(__doc__)
        return 2
    program, cli = sys.argv[1], sys.argv[2]
    tools = ["Xvfb", "xdotool", "dbus-daemon", "dbus-send"]
    missing = [tool for tool in tools if not shutil.which(tool)]
    try:
        import gi  # noqa: F401
        gi.require_version("Atspi", "2.0")
    except (ImportError, ValueError):
        missing.append("python3-pyatspi")
    if missing:
        print("skipped: missing " + ", ".join(missing))
        return SKIP
    desktop = Desktop()
    app = None
    try:
        desktop.start()
        import pyatspi
        focused = []
        pyatspi.Registry.registerEventListener(
            lambda event: focused.append(event.source) if event.detail1 == 1 else None,
            "object:state-changed:focused")
        settings = os.path.join(desktop.dir, "Settings.reg")
        speech = os.path.join(desktop.dir, "speech.log")
        for key, value in (("ttsOn", "1"), ("expr1", "x^2-4")):
            subprocess.run([cli, "settings", "set", key, value], env=dict(desktop.env, SONALYX_SETTINGS=settings),
                           check=True, capture_output=True)
        app = desktop.spawn([program], env=dict(desktop.env, SONALYX_SETTINGS=settings, SONALYX_SPEECH="capture",
                                                SONALYX_SPEECH_LOG=speech, SONALYX_AUDIO="null"))
        accessible = None
        deadline = time.time() + 60
        while accessible is None and time.time() < deadline and app.poll() is None:
            pump(0.2)
            root = pyatspi.Registry.getDesktop(0)
            for index in range(root.childCount):
                child = root.getChildAtIndex(index)
                try:
                    if child is not None and child.get_process_id() == app.pid and child.childCount > 0:
                        accessible = child
                except Exception:
                    pass
        check("the program is in the accessible tree", accessible is not None)
        if accessible is None:
            return 1
        window = subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(app.pid)],
                                env=desktop.env, capture_output=True, text=True, timeout=30).stdout.split()
        subprocess.run(["xdotool", "windowfocus", "--sync", window[0]], env=desktop.env, timeout=10)
        pump(0.5)

        def key(name, settle=0.6):
            subprocess.run(["xdotool", "key", name], env=desktop.env, timeout=10)
            pump(settle)

        key("F4", 2.0)
        table = None
        deadline = time.time() + 30
        while time.time() < deadline:
            table = find(accessible, lambda a: a.getRoleName() == "table" and a.name == "Data set 1 table")
            if table is not None and table.queryTable().nRows == 502:
                break
            pump(0.2)
        check("the table of data set 1 is there", table is not None)
        if table is None:
            return 1
        cells = table.queryTable()
        check("it holds 501 points and a row for a new one", cells.nRows == 502, "%d rows" % cells.nRows)
        titles = [cells.getColumnDescription(c) or (cells.getColumnHeader(c).name if cells.getColumnHeader(c) else "")
                  for c in range(cells.nColumns)]
        check("its columns are titled", titles == ["x", "f(x)", "d(f(x))/dx", "\u222bf(x)dx", "Trend"], str(titles))
        expected = {(0, 0): "x = -10", (0, 1): "f(x) = 96", (1, 1): "f(x) = 95.2016", (1, 4): "Trend +",
                    (250, 0): "x = 0", (250, 1): "f(x) = -4", (501, 0): "x, new point"}
        names = {where: cells.getAccessibleAt(*where).name for where in expected}
        check("every cell is named with its column", names == expected, str(names))

        # Tab through the page until the table has the focus, then one row down.
        for _ in range(8):
            focused.clear()
            key("Tab")
            now = focused[-1] if focused else None
            if now is not None and now.getRoleName() in ("table cell", "table"):
                break
        check("Tab reaches the table", now is not None and now.getRoleName() in ("table cell", "table"),
              now.getRoleName() if now is not None else "no focus event")
        with open(speech, encoding="utf-8") as log:
            before = len(log.readlines())
        focused.clear()
        key("Down")
        now = focused[-1] if focused else None
        check("Down puts the focus on the next row's cell", now is not None and now.name == "x = -9.96",
              now.name if now is not None else "no focus event")
        with open(speech, encoding="utf-8") as log:
            said = [line.strip() for line in log.readlines()[before:]]
        check("the program says the row", any(line.startswith("Row 2: x = minus 9.96, f(x) = 95.2016") for line in said),
              str(said))
        check("the program is still running", app.poll() is None, "exit %s" % app.returncode)
        return 1 if FAILURES else 0
    finally:
        desktop.close()


if __name__ == "__main__":
    sys.exit(main())

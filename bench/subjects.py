"""The programs that are measured and the states they are started in.

A further state of our program is one more entry in SUBJECTS: which widgets are open, how many
windows that makes, what else stands in its settings or its data folder, and which buttons are
pressed before it is left alone.
"""

import os
import re
import shutil
import subprocess
from dataclasses import dataclass, field, replace
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
WINDOWS_BUILD = Path(os.environ.get("VARNEL_BENCH_WINDOWS", ROOT / "build/windows"))
PROGRAM = WINDOWS_BUILD / "WidgetVarnel.exe"
WORK = WINDOWS_BUILD / "bench/work"

DETAILS = r"frmVRNpr\Details"
# Nothing listens there, so the program asks for updates without leaving the machine.
NOWHERE = {
    r"Settings\Details": {"Web Address": "http://127.0.0.1:9/"},
    r"frmWTHpr\Details": {"Live Weather Address": "http://127.0.0.1:9/"},
}
LONG_LOG = "".join(f'"{i} * 3 = {i * 3}.0"\r\n' for i in range(10_000)).encode()
TOOLS = ("Clock", "Calc", "Stopwatch", "Timer", "Weather")
ALL_WIDGETS = (*TOOLS, "Calendar", "Notes", "Whiteboard")


@dataclass(frozen=True)
class Subject:
    """One program in one state. `widgets` and what follows is for ours only."""

    name: str
    command: tuple = ()
    windows: int = 1
    widgets: tuple = ()
    settings: dict = field(default_factory=dict)  # section to name to text
    files: dict = field(default_factory=dict)  # name in the data folder to bytes
    presses: tuple = ()  # form and control
    program: Path = PROGRAM

    @property
    def key(self):
        return f"Varnel Bench {self.name.replace(',', '')}"

    @property
    def folder(self):
        return WORK / self.name.replace(",", "").replace(" ", "-")

    def words(self):
        """Returns the command line that starts it."""
        if self.command:
            return ["wine", *self.command]
        folder = "Z:" + str(self.folder).replace("/", "\\")
        return ["wine", str(self.program), "/settings", self.key, "/data", folder]

    def prepare(self):
        """Puts its settings into the registry and its files into its folder."""
        if self.command:
            return
        flags = {f"Start-Load-{widget}": "True" for widget in self.widgets}
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        for name, content in self.files.items():
            (self.folder / name).write_bytes(content)
        write_settings(self.key, {**NOWHERE, DETAILS: flags, **self.settings}, self.folder)

    def press(self):
        """Presses its buttons."""
        for form, control in self.presses:
            probe = WINDOWS_BUILD / "bench/bench_press.exe"
            subprocess.run(["wine", probe, form, control_number(control)], check=True)

    def clean_up(self):
        """Takes back what `prepare` did."""
        if not self.command:
            key = rf"HKCU\Software\{self.key}"
            subprocess.run(["wine", "reg", "delete", key, "/f"], stdout=subprocess.DEVNULL)
            shutil.rmtree(self.folder, ignore_errors=True)


def write_settings(key, sections, folder):
    """Stores texts below HKEY_CURRENT_USER\\Software\\`key`: section to name to text."""
    lines = ["REGEDIT4", ""]
    for section, values in sections.items():
        lines.append(rf"[HKEY_CURRENT_USER\Software\{key}\{section}]")
        lines += [f'"{name}"="{text}"' for name, text in values.items()] + [""]
    script = folder / "settings.reg"
    script.write_text("\r\n".join(lines))
    subprocess.run(["wine", "regedit", "/S", script], check=True)
    script.unlink()


def control_number(name):
    """Returns the number of the control of that name."""
    text = (ROOT / "resources/control_ids.h").read_text()
    return re.search(rf"^  {name} = (\d+)", text, re.MULTILINE)[1]


def bare_window(name, timers):
    """Returns the subject of an empty window with that many timers of 100 ms."""
    return Subject(name, command=(str(WINDOWS_BUILD / "bench/bench_hello.exe"), str(timers)))


SUBJECTS = (
    bare_window("one timer", 1),
    bare_window("two timers", 2),
    Subject("notepad", command=(r"C:\windows\system32\notepad.exe",)),
    Subject("manager"),
    Subject("clock", windows=2, widgets=("Clock",)),
    Subject(
        "stopwatch, countdown",
        windows=3,
        widgets=("Stopwatch", "Timer"),
        settings={r"frmCDNwg\Details": {"Timer-Interval-hrs": "10"}},
        presses=(("frmSTWwg", "lblStartfrmSTWwg"), ("frmCDNwg", "lblStart")),
    ),
    Subject("calculator, empty log", windows=2, widgets=("Calc",)),
    Subject("calculator, long log", windows=2, widgets=("Calc",), files={"calc2.dat": LONG_LOG}),
    Subject("five widgets", windows=6, widgets=TOOLS),
    Subject("all widgets", windows=9, widgets=ALL_WIDGETS),
)


def of_program(subject, program):
    """Returns a subject in the state of `subject`, run by another program file of ours."""
    return replace(subject, name=f"{subject.name}, before", program=program)

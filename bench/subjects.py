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
def long_text(formatted):
    """Returns a megabyte of paragraphs of 60 to 240 letters, every seventh bold where it may be."""
    words, paragraphs, size = "some plain words of a text that nobody wrote ".split(), [], 0
    while size < 1 << 20:
        number = len(paragraphs)
        text = " ".join(words[(number * 7 + i) % len(words)] for i in range(12 + number * 5 % 37))
        size += len(text) + 2
        paragraphs.append(f"{{\\b {text}}}" if formatted and number % 7 == 0 else text)
    if not formatted:
        return "\r\n".join(paragraphs).encode()
    head = r"{\rtf1\ansi\deff0{\fonttbl{\f0 Tahoma;}}\f0\fs20 "
    return (head + "\\par\r\n".join(paragraphs) + "}").encode()


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
    files: dict = field(default_factory=dict)  # path in its folder to bytes
    to_rest: bool = False  # it is a document that is opened, until nothing is left to do
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
        folder = "Z:" + str(self.folder).replace("/", "\\")
        if self.command:
            return ["wine", *self.command, *(f"{folder}\\{name}" for name in self.files)]
        return ["wine", str(self.program), "/settings", self.key, "/data", folder]

    def prepare(self):
        """Puts its settings into the registry and its files into its folder."""
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        for name, content in self.files.items():
            (self.folder / name).parent.mkdir(parents=True, exist_ok=True)
            (self.folder / name).write_bytes(content)
        if self.command:
            return
        flags = {f"Start-Load-{widget}": "True" for widget in self.widgets}
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


WORDPAD = (r"C:\Program Files\Windows NT\Accessories\wordpad.exe",)
# Unsaved changes of a run before are what the program shows when it starts.
DRAFT = "tavrin/.varnel/long.{}.draft"


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
    Subject("notes", windows=2, widgets=("Notes",)),
    Subject("wordpad, formatted", WORDPAD, files={"long.rtf": long_text(True)}, to_rest=True),
    Subject("formatted note", windows=2, widgets=("Notes",),
            files={DRAFT.format("rtf"): long_text(True)}, to_rest=True),
    Subject("wordpad, plain text", WORDPAD, files={"long.txt": long_text(False)}, to_rest=True),
    Subject("plain text note", windows=2, widgets=("Notes",),
            files={DRAFT.format("txt"): long_text(False)}, to_rest=True),
)


def of_program(subject, program):
    """Returns a subject in the state of `subject`, run by another program file of ours."""
    return replace(subject, name=f"{subject.name}, before", program=program)

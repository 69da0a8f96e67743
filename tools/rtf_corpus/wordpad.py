"""Lets Wine's own word processor open files of the corpus and write them again, worked by keys."""

import os
import shutil
import subprocess
import time

# What its rich edit control reads and writes rightly; letters beyond western ones are not among it.
NAMES = ("letters", "sizes", "colours", "fonts", "align", "tabs", "signs", "western", "spacing")
SECONDS = 20
WORDPAD = r"C:\Program Files\Windows NT\Accessories\wordpad.exe"


def window(name):
    found = subprocess.run(["xdotool", "search", "--name", f"{name}.*Wordpad"], capture_output=True, text=True)
    return found.stdout.split()


def press(*keys):
    subprocess.run(["xdotool", "key", "--delay", "60", *keys], check=True)


def wait(what):
    end = time.monotonic() + SECONDS
    while not what():
        if time.monotonic() > end:
            raise RuntimeError("wordpad does not answer")
        time.sleep(0.2)


def rewrite(file):
    """Opens a file, puts a letter at its end and takes it away, saves and closes."""
    before = file.read_bytes()
    program = subprocess.Popen(["wine", WORDPAD, f"Z:{file}".replace("/", "\\")], stderr=subprocess.DEVNULL)
    try:
        wait(lambda: window(file.name))
        subprocess.run(["xdotool", "windowactivate", window(file.name)[0]], capture_output=True)
        time.sleep(1)
        press("ctrl+End", "x", "BackSpace", "ctrl+s")
        wait(lambda: file.read_bytes() != before)
        time.sleep(0.5)
        press("alt+F4")
        program.wait(SECONDS)
    finally:
        program.kill()
    return file.read_bytes()


def make(work, corpus):
    if "WINEPREFIX" not in os.environ:
        raise SystemExit("wordpad needs a session: tools/with_session.sh tools/rtf_corpus/make.py wordpad")
    made = {}
    for name in NAMES:
        file = work / f"{name}.rtf"
        shutil.copy(corpus / f"{name}.libreoffice.rtf", file)
        made[name] = rewrite(file)
    return made

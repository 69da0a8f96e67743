"""The figures that are printed, each with what it is held against."""

from dataclasses import dataclass
from statistics import median


@dataclass(frozen=True)
class Figure:
    """One line of the result.

    `quantity` is what was measured of a subject; it is divided by the same quantity of the subject
    `ratio_to`. `most` is the target, None for none.
    """

    title: str
    subject: str
    quantity: str
    unit: str
    ratio_to: str
    most: float = None

    def judge(self, samples):
        """Returns (title, own value, baseline's value, result, target, whether it holds)."""
        ours = samples.get((self.subject, self.quantity))
        base = samples.get((self.ratio_to, self.quantity))
        if not ours or not base:
            return (self.title, "not measured", "", "", self.target(), "NO" if self.most else "")
        value = median(ours) / median(base)
        holds = "" if self.most is None else "yes" if value <= self.most else "NO"
        return (self.title, spread(ours, self.unit), spread(base, self.unit), f"x {value:.2f}",
                self.target(), holds)

    def target(self):
        """Returns the target as text."""
        return "" if self.most is None else f"<= x {self.most:g}"


def spread(values, unit):
    """Returns median, lowest and highest as text."""
    digits = 0 if unit == "ms" else 2
    low, high = min(values), max(values)
    text = f"{median(values):.{digits}f} {unit}"
    return text if len(values) == 1 else f"{text} ({low:.{digits}f}-{high:.{digits}f})"


START, START_CPU, MEMORY, IDLE, REST = "start", "start CPU", "memory", "idle", "start to rest"

FIGURES = (
    Figure("start to painted manager", "manager", START, "ms", ratio_to="notepad", most=0.8),
    Figure("start to manager and clock", "clock", START, "ms", ratio_to="notepad"),
    Figure("start to all windows", "all widgets", START, "ms", ratio_to="notepad", most=1.5),
    Figure("start to manager and five widgets", "five widgets", START, "ms", ratio_to="notepad"),
    Figure("start, calculator with 10,000 lines", "calculator, long log", START, "ms",
           ratio_to="calculator, empty log", most=1.2),
    Figure("CPU until manager painted", "manager", START_CPU, "ms", ratio_to="notepad"),
    Figure("CPU until manager, clock painted", "clock", START_CPU, "ms", ratio_to="notepad"),
    Figure("CPU, calculator with 10,000 lines", "calculator, long log", START_CPU, "ms",
           ratio_to="calculator, empty log"),
    Figure("CPU until all painted", "all widgets", START_CPU, "ms", ratio_to="notepad"),
    Figure("memory, manager and clock", "clock", MEMORY, "MiB", ratio_to="notepad", most=1.2),
    Figure("memory, manager and five widgets", "five widgets", MEMORY, "MiB", ratio_to="notepad"),
    Figure("memory, all windows", "all widgets", MEMORY, "MiB", ratio_to="notepad", most=1.5),
    # Against an empty window with as many timers of 100 ms as tick in that state.
    Figure("idle, manager", "manager", IDLE, "ms/s", ratio_to="one timer", most=1.2),
    Figure("idle, clock", "clock", IDLE, "ms/s", ratio_to="two timers", most=1.5),
    Figure("idle, stopwatch and countdown run", "stopwatch, countdown", IDLE, "ms/s",
           ratio_to="two timers"),
    Figure("idle, all widgets", "all widgets", IDLE, "ms/s", ratio_to="two timers", most=2),
    Figure("formatted note of 1 MB, start to rest", "formatted note", REST, "ms",
           ratio_to="wordpad, formatted", most=0.7),
    Figure("plain text note of 1 MB, start to rest", "plain text note", REST, "ms",
           ratio_to="wordpad, plain text", most=0.9),
)

# The milliseconds that notes may need more than the clock until all is painted.
MOST_FOR_NOTES = 60

QUANTITIES = {START: "ms", START_CPU: "ms", MEMORY: "MiB", IDLE: "ms/s", REST: "ms"}


def against_before(name, before):
    """Returns the figures that hold a subject against the same of another program file."""
    return [Figure(f"{name}: {quantity}", name, quantity, unit, ratio_to=before)
            for quantity, unit in QUANTITIES.items()]


def notes_beside_clock(samples):
    """Returns the line that holds the start with the notes open against that with the clock."""
    title, target = "start, notes open, empty folder, beyond the clock", f"<= {MOST_FOR_NOTES} ms"
    notes, clock = samples.get(("notes", START)), samples.get(("clock", START))
    if not notes or not clock:
        return (title, "not measured", "", "", target, "NO")
    more = median(notes) - median(clock)
    return (title, spread(notes, "ms"), spread(clock, "ms"), f"{more:+.0f} ms", target,
            "yes" if more <= MOST_FOR_NOTES else "NO")


@dataclass(frozen=True)
class Limit:
    """A target for a figure that a probe prints by name."""

    title: str
    least: float = None
    most: float = None

    def judge(self, values):
        """Returns what Figure.judge does."""
        value, unit = values[self.title]
        sign, bound = ("<=", self.most) if self.least is None else (">=", self.least)
        holds = value <= bound if self.least is None else value >= bound
        target = f"{sign} {bound:g} {unit}"
        return (self.title, f"{value:.4g} {unit}", "", "", target, "yes" if holds else "NO")


EXE_SIZE = "size of the program"

LIMITS = (
    Limit(EXE_SIZE, most=6),
    Limit("stopwatch, click to painted button", most=16),
    Limit("calculator, key to painted digit", most=16),
    *(Limit(f"stroke segment against GDI, {width} px", most=1) for width in (2, 3, 6, 20)),
    Limit("whiteboard of full HD, mouse move to painted pixel", most=16),
    Limit("calendar, a month saved and the next painted", most=60),
    Limit("full-HD board saved, against a plain write", most=1.3),
    Limit("10,000 boards listed and sorted, against FindFirstFile", most=1.6),
    Limit("preview, key to painted page", most=16),
    Limit("feed reader", least=100),
    Limit("weather, longest block while 1 MB comes", most=50),
    Limit("note of 100 KB, key to painted letter", most=16),
    Limit("note of 1 MB saved, against streaming it out to a file", most=1.3),
    Limit("10,000 notes listed and sorted, against FindFirstFile", most=1.6),
    Limit("first of 100 hits among 10,000 notes", most=0.3),
    Limit("10,000 hits in a note of 1 MB replaced, against opening it", most=1.5),
    Limit("dictionary of 170,000 words read", most=20),
    Limit("suggestions for a word", most=10),
    Limit("spelling of 1 MB, against bare look-ups", most=3),
    Limit("calculator log, a line added to 10,000 against none", most=1.2),
)


def rows(samples, values):
    """Returns every line of the result; probes' figures without a limit stand at the end."""
    limits = {limit.title: limit for limit in LIMITS}
    lines = [figure.judge(samples) for figure in FIGURES] + [notes_beside_clock(samples)]
    for title, limit in limits.items():
        if title in values:
            lines.append(limit.judge(values))
        else:
            lines.append((title, "not measured", "", "", "", "NO"))
    for title, (value, unit) in values.items():
        if title not in limits:
            lines.append((title, f"{value:.4g} {unit}", "", "", "", ""))
    return lines

#!/usr/bin/python3
"""Measures the program against Wine's notepad and empty windows, in one interleaved run.

Absolute times drift with whatever else the machine does; the ratios of one run can be compared.
Every round starts each subject once, one after the other, so that all meet the same conditions.
"""

import argparse
import json
import os
import subprocess
import sys
import time
from collections import defaultdict
from pathlib import Path

import figures
import processes
from subjects import PROGRAM, ROOT, SUBJECTS, WINDOWS_BUILD, of_program

NATIVE_BUILD = os.environ.get("VARNEL_BENCH_NATIVE", ROOT / "build/native")
PATIENCE = 120  # seconds for the windows of a subject to come
REST = 5  # seconds from the start to the look at the memory
IDLE_STRETCHES = 2


def start(subject):
    """Starts a subject; returns its process and the milliseconds until its windows were painted."""
    probe = f"{NATIVE_BUILD}/bench/bench_xwatch"
    words = [probe, str(subject.windows), str(PATIENCE), *subject.words()]
    answer = json.loads(subprocess.run(words, stdout=subprocess.PIPE, text=True).stdout)
    return answer["pid"], answer["painted_ms"]


def idle_ms_per_s(pid, seconds):
    """Returns the CPU time that a process and the Wine server take while nobody does anything."""
    pids = (pid, processes.wine_server())
    before, begin = sum(map(processes.cpu_ms, pids)), time.monotonic()
    time.sleep(seconds)
    return (sum(map(processes.cpu_ms, pids)) - before) / (time.monotonic() - begin)


def measure(subject, idle, look_closer, samples):
    """Starts a subject once and adds what it costs to `samples`; returns whether it came up."""
    begin = time.monotonic()
    pid, painted = start(subject)
    try:
        if painted < 0:
            print(f"{subject.name}: its {subject.windows} windows did not come", file=sys.stderr)
            return False
        if subject.to_rest:
            rest = processes.wait_for_rest(pid)
            samples[subject.name, figures.REST].append(1000 * (rest - begin))
            return True
        samples[subject.name, figures.START].append(painted)
        samples[subject.name, figures.START_CPU].append(processes.cpu_ms(pid))
        if not look_closer:
            return True
        time.sleep(REST)
        samples[subject.name, figures.MEMORY].append(processes.anonymous_mib(pid))
        if idle > 0:
            subject.press()
            time.sleep(1)
            samples[subject.name, figures.IDLE].append(idle_ms_per_s(pid, idle))
        return True
    finally:
        processes.end(pid)
        subprocess.run(["wine", str(WINDOWS_BUILD / "bench/bench_clean_shell.exe")], check=True)


def measure_all(subjects, runs, idle):
    """Returns the samples of every subject and quantity."""
    samples = defaultdict(list)
    for subject in subjects:
        subject.prepare()
    try:
        # What only a first start costs counts for nobody; who does not come up is left out.
        able = [s for s in subjects if measure(s, 0, False, defaultdict(list))]
        for run in range(runs):
            look_closer = run < IDLE_STRETCHES
            print(f"round {run + 1} of {runs}", file=sys.stderr, flush=True)
            for subject in able:
                measure(subject, idle / IDLE_STRETCHES, look_closer, samples)
    finally:
        for subject in subjects:
            subject.clean_up()
    return samples


def probe_values(*words, program=PROGRAM):
    """Runs a probe that prints names, figures and units; returns {name: (figure, unit)}."""
    environment = {**os.environ, "VARNEL_EXE": "Z:" + str(program).replace("/", "\\")}
    output = subprocess.run(words, stdout=subprocess.PIPE, text=True, env=environment).stdout
    lines = (line.strip().split("\t") for line in output.splitlines())
    return {name: (float(figure), unit) for name, figure, unit in lines}


def print_table(lines):
    """Prints the figures in columns, under their headings."""
    table = [("figure", "ours", "against", "result", "target", "holds"), *lines]
    widths = [max(len(line[column]) for line in table) for column in range(len(table[0]))]
    for line in table:
        print("  ".join(text.ljust(width) for text, width in zip(line, widths)).rstrip())


def compared(subjects, program):
    """Returns each subject that `program` can be put into, with that subject; none without one."""
    if not program:
        return []
    return [(s, of_program(s, program)) for s in subjects if not s.command]


def lines_of_pairs(pairs, samples, program, values):
    """Returns the lines that hold the program against another one of ours."""
    lines = [figure.judge(samples) for subject, before in pairs
             for figure in figures.against_before(subject.name, before.name)]
    older = probe_values("wine", str(WINDOWS_BUILD / "bench/bench_latency.exe"), program=program)
    for title in sorted(older.keys() & values.keys()):
        (ours, unit), (theirs, _) = values[title], older[title]
        lines.append((title, f"{ours:.4g} {unit}", f"{theirs:.4g} {unit}", f"x {ours / theirs:.2f}",
                      "", ""))
    return lines


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--runs", type=int, default=11, help="starts of each subject (11)")
    parser.add_argument("--idle", type=float, default=60, help="seconds of rest measured (60)")
    parser.add_argument("--quick", action="store_true", help="3 starts, 10 seconds of rest")
    parser.add_argument("--only", help="subjects whose names hold this, beside the baselines")
    parser.add_argument("--before", type=Path,
                        help="another program file of ours, measured beside this one")
    options = parser.parse_args()
    runs, idle = (3, 10) if options.quick else (options.runs, options.idle)
    chosen = [s for s in SUBJECTS if s.command or not options.only or options.only in s.name]

    pairs = compared(chosen, options.before)
    samples = measure_all(chosen + [before for _, before in pairs], runs, idle)
    values = {figures.EXE_SIZE: (PROGRAM.stat().st_size / 1e6, "MB")}
    for probe in ("bench_latency", "bench_boards", "bench_theme", "bench_preview", "bench_weather",
                  "bench_micro"):
        values |= probe_values("wine", str(WINDOWS_BUILD / f"bench/{probe}.exe"))
    print_table(figures.rows(samples, values))
    if pairs:
        print(f"\nbeside {options.before}")
        print_table(lines_of_pairs(pairs, samples, options.before, values))


if __name__ == "__main__":
    main()

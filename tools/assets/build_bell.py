#!/usr/bin/python3
"""Makes the bell that an alarm rings with: 0.8 s, 22,050 Hz, 16 bits, mono.

usage: build_bell.py OUT.wav

A bell is a sum of sines, each fading at its own pace: the hum below the note, the note itself with
a twin slightly off it (which makes it shimmer), the minor third that marks a bell, and high
partials that are gone at once (the strike). The same bytes every time.
"""

import math
import struct
import sys
import wave
from typing import NamedTuple

RATE = 22050  # samples a second
LENGTH = 0.8  # seconds
NOTE = 880.0  # Hz
ATTACK = 0.002  # seconds, linear: no click at the start
RELEASE = 0.060  # seconds, raised cosine: no click at the end
PEAK = 0.80  # of full scale


class Partial(NamedTuple):
    """One sine: frequency as a multiple of the note, level, seconds in which it falls to 1/e."""

    ratio: float
    level: float
    decay: float


PARTIALS = (
    Partial(0.500, 0.22, 0.42),  # hum
    Partial(1.000, 1.00, 0.30),  # the note that is heard
    Partial(1.005, 0.35, 0.28),  # its twin
    Partial(1.200, 0.30, 0.20),  # minor third
    Partial(1.500, 0.18, 0.16),  # fifth
    Partial(2.000, 0.55, 0.18),  # octave
    Partial(2.750, 0.22, 0.09),
    Partial(4.070, 0.12, 0.045),  # strike
)


def envelope(time):
    """Returns the level, 0 to 1, that start and end give the sound at `time` seconds."""
    if time < ATTACK:
        return time / ATTACK
    left = LENGTH - time
    if left < RELEASE:
        return (1 - math.cos(math.pi * left / RELEASE)) / 2
    return 1.0


def amplitude(time):
    """Returns the unscaled sound at `time` seconds."""
    return envelope(time) * sum(
        partial.level
        * math.exp(-time / partial.decay)
        * math.sin(2 * math.pi * NOTE * partial.ratio * time)
        for partial in PARTIALS
    )


def main(wave_path):
    """Writes the sound file."""
    sound = [amplitude(index / RATE) for index in range(int(RATE * LENGTH))]
    gain = PEAK * 32767 / max(abs(value) for value in sound)
    samples = [round(value * gain) for value in sound]
    with wave.open(wave_path, "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(struct.pack(f"<{len(samples)}h", *samples))


if __name__ == "__main__":
    main(*sys.argv[1:])

#!/usr/bin/env python3
"""Write the reminder sounds of Ambertask as wave files.

    make_sounds.py OUTPUT_DIR

The folder is made when it does not exist; files of the same name are replaced.
Every file is 16-bit PCM, 44.1 kHz, mono, peaks at -3 dBFS and is the same, byte
for byte, on every run: there is no noise source and no clock in here.

    chime.wav    two bright bell bars, a fifth apart, rising: "something is due"
    bell.wav     one small hand bell with inharmonic partials and a slow beat
    marimba.wav  four short wooden notes up a major chord: lively, easy to hear
    gentle.wav   a soft three-note swell without an attack, for quiet rooms

The last TAIL_SECONDS of each hold only the dying tail, because some players drop
the end of a file; a fade over that tail brings the wave to exact silence.
"""

import array
import math
import sys
import wave
from pathlib import Path

SAMPLE_RATE = 44100
PEAK = 10 ** (-3 / 20)
TAIL_SECONDS = 0.25
# Short enough to keep a struck sound crisp, long enough not to click.
STRUCK_ATTACK_SECONDS = 0.004

A4 = 440.0


def pitch(semitones_from_a4):
    """Frequency in hertz, equal temperament."""
    return A4 * 2 ** (semitones_from_a4 / 12)


def silence(seconds):
    return [0.0] * round(seconds * SAMPLE_RATE)


def add_note(samples, start, frequency, partials, attack=STRUCK_ATTACK_SECONDS):
    """Add a note at `start` seconds.

    `partials` holds (frequency ratio, level, seconds to fall to 1/e) for each sine of the note.
    """
    first = round(start * SAMPLE_RATE)
    for ratio, level, decay in partials:
        step = 2 * math.pi * frequency * ratio / SAMPLE_RATE
        for i in range(len(samples) - first):
            t = i / SAMPLE_RATE
            rise = 0.5 - 0.5 * math.cos(math.pi * min(1.0, t / attack))
            samples[first + i] += level * rise * math.exp(-t / decay) * math.sin(step * i)


def finish(samples):
    """Fade the tail to silence and scale the loudest sample to PEAK."""
    tail = round(TAIL_SECONDS * SAMPLE_RATE)
    faded = list(samples)
    for i in range(tail):
        faded[-1 - i] *= 0.5 - 0.5 * math.cos(math.pi * i / tail)
    scale = PEAK / max(abs(s) for s in faded)
    return [s * scale for s in faded]


def chime():
    bar = [(1.0, 1.0, 0.32), (2.756, 0.30, 0.14), (5.404, 0.10, 0.06)]
    samples = silence(1.6)
    add_note(samples, 0.0, pitch(7), bar)
    add_note(samples, 0.22, pitch(14), bar)
    return samples


def bell():
    # Two fundamentals a hair apart beat slowly, as a cast bell does.
    cast = [
        (0.5, 0.25, 0.45),
        (1.0, 0.70, 0.40),
        (1.003, 0.45, 0.40),
        (1.2, 0.35, 0.28),
        (1.5, 0.18, 0.22),
        (2.0, 0.40, 0.22),
        (2.74, 0.16, 0.12),
        (3.76, 0.08, 0.07),
    ]
    samples = silence(1.8)
    add_note(samples, 0.0, pitch(10), cast)
    return samples


def marimba():
    wood = [(1.0, 1.0, 0.16), (3.93, 0.28, 0.05), (9.2, 0.06, 0.02)]
    samples = silence(1.2)
    for index, semitones in enumerate((-2, 2, 5, 10)):
        add_note(samples, 0.13 * index, pitch(semitones), wood, attack=0.003)
    return samples


def gentle():
    soft = [(1.0, 1.0, 0.42), (2.0, 0.22, 0.30), (3.0, 0.05, 0.20)]
    samples = silence(2.0)
    for index, semitones in enumerate((-5, 0, 4)):
        add_note(samples, 0.20 * index, pitch(semitones), soft, attack=0.12)
    return samples


SOUNDS = {
    "chime.wav": chime,
    "bell.wav": bell,
    "marimba.wav": marimba,
    "gentle.wav": gentle,
}


def write_wave(path, samples):
    frames = array.array("h", (round(s * 32767) for s in samples))
    if sys.byteorder == "big":
        frames.byteswap()
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(SAMPLE_RATE)
        out.writeframes(frames.tobytes())


def main(arguments):
    if len(arguments) != 1:
        print("usage: make_sounds.py OUTPUT_DIR", file=sys.stderr)
        return 2
    folder = Path(arguments[0])
    folder.mkdir(parents=True, exist_ok=True)
    for name, compose in SOUNDS.items():
        write_wave(folder / name, finish(compose()))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

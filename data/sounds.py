#!/usr/bin/env python3
"""Makes the two sounds that come with the data. Run: sounds.py FOLDER

InicioRegisto.wav, the start of a log: two rising soft tones. SomTecla.wav, a key press: a short dull click.
16-bit mono, 22,050 Hz.
"""

import math
import struct
import sys
import wave
from pathlib import Path

RATE = 22050


def tone(frequency, seconds, volume, decay):
    """A sine with a second harmonic, five milliseconds of attack and an exponential decay."""
    for i in range(int(RATE * seconds)):
        t = i / RATE
        envelope = min(1.0, t / 0.005) * math.exp(-decay * t)
        yield volume * envelope * (math.sin(2 * math.pi * frequency * t) +
                                   0.25 * math.sin(4 * math.pi * frequency * t))


def write(path, samples):
    with wave.open(str(path), 'wb') as file:
        file.setparams((1, 2, RATE, 0, 'NONE', ''))
        file.writeframes(b''.join(struct.pack('<h', int(32767 * max(-1.0, min(1.0, s)))) for s in samples))


def main():
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    write(folder / 'InicioRegisto.wav', [*tone(523.25, 0.18, 0.4, 9), *tone(783.99, 0.45, 0.4, 7)])
    write(folder / 'SomTecla.wav', list(tone(190, 0.06, 0.5, 70)))


if __name__ == '__main__':
    main()

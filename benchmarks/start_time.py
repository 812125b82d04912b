#!/usr/bin/python3
"""Times starts of the program on a private desktop, from the start of the process until the keys of its
keyboard stand on the screen. Run: start_time.py PROGRAM DELIVERED [RUNS]
"""

import ctypes
import shutil
import statistics
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / 'tests' / 'desktop'))
from desktop import Desktop, wait_for  # noqa: E402

TARGET = 1.0  # seconds
KEY_COLOR = 0xF6F7F9  # of the delivered profile
SPOTS = ((135, 385), (400, 505), (235, 560))  # on its keys W and V and its space bar, beside their labels


class Screen:
    """Pixels of the screen, asked of the X server itself: another program to ask would take longer."""

    def __init__(self):
        x11 = self.x11 = ctypes.CDLL('libX11.so.6')
        x11.XOpenDisplay.restype = x11.XGetImage.restype = ctypes.c_void_p
        x11.XDefaultRootWindow.restype = x11.XGetPixel.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(x11.XOpenDisplay(None))
        self.root = ctypes.c_ulong(x11.XDefaultRootWindow(self.display))

    def pixel(self, x, y):
        all_planes, z_pixmap = ctypes.c_ulong(-1), 2
        image = ctypes.c_void_p(self.x11.XGetImage(self.display, self.root, x, y, 1, 1, all_planes, z_pixmap))
        value = self.x11.XGetPixel(image, 0, 0)
        self.x11.XDestroyImage(image)
        return value & 0xFFFFFF

    def shows_keys(self):
        return all(self.pixel(x, y) == KEY_COLOR for x, y in SPOTS)


def start(desktop, screen, program):
    begin = time.monotonic()
    process = desktop.start([str(program)])
    wait_for(screen.shows_keys, 'the keyboard')
    seconds = time.monotonic() - begin
    process.terminate()
    process.wait(15)
    wait_for(lambda: not screen.shows_keys(), 'the end of the window')
    return seconds


def main():
    program, delivered = (Path(word).resolve() for word in sys.argv[1:3])
    runs = int(sys.argv[3]) if len(sys.argv) > 3 else 10
    with Desktop() as desktop:
        desktop.install(delivered)
        shutil.copytree(delivered, desktop.data)
        screen = Screen()
        seconds = [start(desktop, screen, program) for _ in range(runs)]
    print('start to usable window, %d runs: first %.0f ms, median %.0f ms, slowest %.0f ms (target %.0f ms)' % (
        runs, seconds[0] * 1000, statistics.median(seconds) * 1000, max(seconds) * 1000, TARGET * 1000))


if __name__ == '__main__':
    main()

#!/usr/bin/python3
"""First start, a second start while it runs, a start after a crash, and an end by signal that saves."""

import os
import signal
import subprocess
import time

from desktop import Program, wait_for
from story import expect, play


def story(desktop, program):
    # The first start copies the installation folder's files, without its galleries.
    ondrilo = Program(desktop, program)
    expect((desktop.data / 'generico.cfg').exists(), 'the first start copied no files')
    expect(not list(desktop.data.glob('CAT_IMG_*')), 'the first start copied folders')

    # A second start ends at once, in silence, and touches nothing.
    before = {path.name: path.stat().st_mtime_ns for path in desktop.data.iterdir()}
    second = subprocess.run([str(program)], capture_output=True, timeout=10, text=True)
    expect(second.stdout == '', 'a second start said something')
    windows = desktop.xdotool('search', '--name', '^Ondrilo V3.0').split()
    expect(len(windows) == 1, 'a second start brought another window')
    after = {path.name: path.stat().st_mtime_ns for path in desktop.data.iterdir()}
    expect(before == after, 'a second start changed files')

    # A link to a keyboard of the same size shows the predictions there too.
    ondrilo.click('Letras por ordem alfabética')
    wait_for(lambda: '(Alfabetico)' in ondrilo.title() and ondrilo.keys()[0], 'predictions on the linked keyboard')

    # A window that leaves the maximised state is where it was.
    place = desktop.xdotool('getwindowgeometry', windows[0])
    desktop.click(991, 49)  # the middle one of the buttons at the right of its title
    wait_for(lambda: desktop.xdotool('getwindowgeometry', windows[0]) != place, 'the maximised window')
    desktop.click(1258, 9)
    wait_for(lambda: desktop.xdotool('getwindowgeometry', windows[0]) == place, 'the window at its former place')

    # A killed program leaves nothing that stands in the way of the next.
    ondrilo.process.kill()
    ondrilo.process.wait(10)
    ondrilo = Program(desktop, program)
    ondrilo.click('a')
    ondrilo.click('b')
    ondrilo.click('Espaço')
    ondrilo.expect_text('ab ')
    time.sleep(0.3)  # the word is learned when its end is handled
    os.kill(ondrilo.process.pid, signal.SIGTERM)
    expect(ondrilo.process.wait(15) == 0, 'the end by signal was not orderly')
    expect('ab 1' in (desktop.data / 'generico.pal').read_text('cp1252'), 'the end by signal did not save')


play(story)

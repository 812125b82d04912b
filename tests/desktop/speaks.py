#!/usr/bin/python3
"""A person hears letters, words, sentences and keys while writing, goes on writing while the speech service dies
and comes back, and hears what scanning lights in another voice.

The service is the real one. Its only module writes each text into a file when it begins to say it.
"""

import os
import signal
import time

from desktop import Program, wait_for
from story import expect, play, prepare_data, set_options, use_words

RECORDER = """#!/bin/sh
printf '%%s|%%s|%%s\\n' "$@" >>'%(folder)s/said'
espeak-ng -v "$1" -w '%(folder)s/said.wav' -- "$3"
sleep 2
printf 'end|%%s\\n' "$3" >>'%(folder)s/said'
"""
MODULE = """GenericExecuteSynth "sh %(folder)s/record \\'$VOICE\\' $VOLUME \\'$DATA\\'"
GenericMaxChunkLength 100000
GenericDelimiters "\\n"
GenericVolumeMultiply 100
GenericVolumeForceInteger 1
GenericLanguage "pt" "pt" "utf-8"
AddVoice "pt" "MALE1" "Portuguese (Portugal)"
AddVoice "pt" "MALE2" "Portuguese (Brazil)"
"""
# The module has the name of the one that the delivered profile speaks through.
SERVICE = """AudioOutputMethod "libao"
SymbolsPreproc "none"
DefaultLanguage "pt"
DefaultVolume 100
DefaultModule espeak-ng
AddModule "espeak-ng" "sd_generic" "module.conf"
"""


class Speech:
    """The speech service of the story."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.folder = desktop.folder / 'speech'
        (self.folder / 'modules').mkdir(parents=True)
        words = {'folder': self.folder}
        (self.folder / 'record').write_text(RECORDER % words)
        (self.folder / 'modules' / 'module.conf').write_text(MODULE % words)
        (self.folder / 'speechd.conf').write_text(SERVICE)
        os.environ['SPEECHD_ADDRESS'] = 'unix_socket:%s' % (self.folder / 'socket')
        self.start()

    def start(self):
        (self.folder / 'pid').unlink(missing_ok=True)  # what one that was killed leaves behind
        self.process = self.desktop.start(['speech-dispatcher', '-s', '-c', 'unix_socket', '-t', '0', '-C', self.folder,
                                           '-S', self.folder / 'socket', '-P', self.folder / 'pid', '-L', self.folder])

    def die(self):
        os.kill(self.process.pid, signal.SIGKILL)
        self.process.wait()

    def said(self):
        path = self.folder / 'said'
        return path.read_text().splitlines() if path.exists() else []

    def expect(self, text, voice='Portuguese (Portugal)|100'):
        """Waits until that is the newest text that was begun."""
        line = '%s|%s' % (voice, text)
        wait_for(lambda: [said for said in self.said() if not said.startswith('end|')][-1:] == [line],
                 '"%s" to be heard, not only %s' % (line, self.said()))


def writes(desktop, program, speech):
    desktop.xdotool('mousemove', 1279, 799)  # on no key
    ondrilo = Program(desktop, program)
    speech.expect('Teclado de letras')
    desktop.press('o')
    speech.expect('o')
    desktop.press('l', 'aacute', 'space')
    speech.expect('olá')
    for key in ('v', 'e', 'm'):
        desktop.press(key)
        speech.expect(key)
    desktop.press('F11')
    speech.expect('vem')
    desktop.press('period', 'space')
    speech.expect('olá vem.')

    desktop.press('F12')
    sentence = 'Portuguese (Portugal)|100|olá vem.'
    wait_for(lambda: speech.said().count(sentence) == 2, 'the sentence to be heard again')
    speech.die()
    desktop.press('s', 'i', 'm')
    ondrilo.expect_text('olá vem. sim')
    speech.start()
    desktop.press('space')
    speech.expect('sim')
    expect(speech.said().count(sentence) == 2, 'what was cut off by the death was repeated')

    ondrilo.rest_on('Maiúscula')
    speech.expect('Maiúscula')
    expect(ondrilo.quit() == 0, 'the program did not end well')


def scans(desktop, program, speech):
    ondrilo = Program(desktop, program)
    time.sleep(0.5)
    desktop.hold('F9')
    speech.expect('Palavras previstas', 'Portuguese (Brazil)|30')
    expect(ondrilo.quit() == 0, 'the program did not end well')


def story(desktop, program):
    prepare_data(desktop)
    use_words(desktop)
    set_options(desktop, {'OUVIR_LETRAS': 1, 'OUVIR_PALAVRAS': 1, 'OUVIR_FRASES': 1, 'OUVIR_COM_RATO_SOBRE': 1})
    speech = Speech(desktop)
    writes(desktop, program, speech)

    set_options(desktop, {'METODO_VARRIMENTO': 'Passo-a-Passo', 'TECLA_MANIPULO1': 'F9',
                          'PISTA_SINTETIZADA_VARRIMENTO': 1})
    (desktop.data / 'generico.acs').write_text('VOZ_PISTAS Portuguese;;;(Brazil);;;-;;;espeak-ng\nVOLUME_PISTAS 30\n')
    scans(desktop, program, speech)


play(story)

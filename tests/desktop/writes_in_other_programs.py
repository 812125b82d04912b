#!/usr/bin/python3
"""A person writes in another program as in the editor: with keys of the screen and their own, with predictions by click
and hot key, with abbreviations, commands and key sequences, after a click elsewhere and after a visit to the editor.

The third word of the command line names the program. Where it shows its text to assistive programs, prediction goes
on from the real text after a click; elsewhere it begins anew.
"""

import sys

from desktop import Program, wait_for
from other_programs import PROGRAMS, attached, click_keys
from story import expect, play, prepare_data, set_option, use_words

KEYBOARD = """LINHA Palavras
GRUPO Palavras
TECLA TECLA_PREDICAO
TECLA TECLA_PREDICAO
LINHA Texto
GRUPO Texto
TECLA TECLA_NORMAL o o o
TECLA TECLA_NORMAL l l l
TECLA TECLA_NORMAL t t t
TECLA TECLA_NORMAL u u u
TECLA TECLA_NORMAL b b b
TECLA TECLA_NORMAL . ponto .
TECLA TECLA_NORMAL espaço espaço Space
TECLA TECLA_NORMAL Nova nova Enter
TECLA TECLA_NORMAL Apagar apagar BkSp
TECLA TECLA_NORMAL <Nenhum> maiúscula Shift
TECLA TECLA_NORMAL Acentos acentos Acentos.tec
LINHA Comandos
GRUPO Comandos
TECLA TECLA_NORMAL Palavra palavra [Apagar-Palavra]
TECLA TECLA_NORMAL Frase frase [Apagar-Frase]
TECLA TECLA_NORMAL Enviar enviar [Enviar-Mensagem-Editor_Externo]
TECLA TECLA_NORMAL Tudo selecção {Ctrl+a}
TECLA TECLA_NORMAL Teclas sequência {Shift+b;;;Enter;;;o}
"""
ACCENTS = """LINHA Acentos
GRUPO Acentos
TECLA TECLA_NORMAL á á á
TECLA TECLA_NORMAL ã ã ã
TECLA TECLA_NORMAL Ç Ç Ç
TECLA TECLA_NORMAL Letras letras Letras.tec
"""
OPTIONS = {'NOME_TECLADO': 'Letras', 'TEMPO_DE_PREDICAO': 200, 'TECLA_EXPANSAO_ABREVIATURAS': 'Tab',
           'POSICAO_INICIAL_JANELA_Y': 460, 'REGISTAR_EVENTOS': 1, 'NOME_SINTETIZADOR_FALA': 'Nenhum'}


def prepare(desktop):
    prepare_data(desktop)
    (desktop.data / 'Letras.tec').write_text(KEYBOARD, 'cp1252')
    (desktop.data / 'Acentos.tec').write_text(ACCENTS, 'cp1252')
    # A vocabulary in which each beginning has one continuation only.
    use_words(desktop, 'bem 4\ntudo 5\n', 'tudo bem 3\n')
    (desktop.data / 'generico.abr').write_text('bl bola bonita\n', 'cp1252')
    for key, value in OPTIONS.items():
        set_option(desktop, key, value)


class Story:
    def __init__(self, desktop, ondrilo, target):
        self.desktop, self.ondrilo, self.target = desktop, ondrilo, target

    def click(self, *names, gives):
        click_keys(self.ondrilo, *names)
        self.target.expect_text(gives)

    def predicted(self, word):
        wait_for(lambda: self.ondrilo.keys()[0] == word, 'the prediction "%s"' % word)

    def writes(self):
        self.click('maiúscula', 'o', 'l', gives='Ol')
        self.click('acentos', 'á', 'ã', 'Ç', gives='OláãÇ')
        self.click('letras', 'ponto', 'espaço', 'maiúscula', 't', 'u', gives='OláãÇ. Tu')
        self.click('tudo', gives='OláãÇ. Tudo ')
        self.predicted('bem')
        self.desktop.press('F1')
        self.target.expect_text('OláãÇ. Tudo bem ')
        self.target.type('a raposa salta')
        self.click('nova', 'b', 'l', gives='OláãÇ. Tudo bem a raposa salta\nbl')
        self.desktop.press('Tab')
        self.target.expect_text('OláãÇ. Tudo bem a raposa salta\nbola bonita ')

    def commands(self):
        text = self.target.text()
        self.click('palavra', 'frase', 'o', 'apagar', 'u', gives=text + 'u')
        self.click('enviar', gives=text + 'uapa')
        self.click('sequência', gives=text + 'uapaB\no')
        self.click('selecção', 't', gives='t')

    def goes_elsewhere(self):
        self.click('u', 'tudo', gives='tudo ')
        self.target.type('o bolo')
        at = self.target.click_behind('tudo ')
        if self.target.tells_text:
            self.predicted('bem')
        self.click('b', gives='tudo bo bolo' if at == 5 else 'tudo o bolob')
        self.predicted('bem')
        self.desktop.press('F1')
        text = 'tudo bem o bolo' if at == 5 else 'tudo o bolobem '
        self.target.expect_text(text)

        with attached(self.desktop, 'INTERNAL_WORD_PROCESSOR'):
            self.ondrilo.click_element(self.ondrilo.editor())
        self.ondrilo.click('u')
        self.ondrilo.expect_text('apau')
        with attached(self.desktop):
            self.target.click()
        text += ' '
        self.click('espaço', 't', 'u', gives=text + 'tu')
        self.click('tudo', gives=text + 'tudo ')
        return text + 'tudo '


def story(desktop, program):
    prepare(desktop)
    target = PROGRAMS[sys.argv[3]](desktop)
    ondrilo = Program(desktop, program)
    desktop.xdotool('type', 'apa')
    ondrilo.expect_text('apa')
    with attached(desktop):
        target.click()

    windows = desktop.windows('.')
    story = Story(desktop, ondrilo, target)
    story.writes()
    story.commands()
    text = story.goes_elsewhere()
    expect(desktop.windows('.') == windows, 'a key brought up another window')
    expect(ondrilo.quit() == 0, 'the program did not end well')
    target.focus()
    saved = target.saved_text()
    expect(saved == text, 'the text is %r, not %r' % (saved, text))
    learned = (desktop.data / 'generico.pal').read_text('cp1252').split('\n')
    for word in ('oláãç', 'raposa'):
        expect(word + ' 1' in learned, '"%s" was not learned once, in %r' % (word, learned))


play(story)

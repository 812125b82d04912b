#!/usr/bin/python3
"""What a person writes into the password field of another program is found neither in the log, nor in what was learned,
nor among the predictions; beside that field all goes on as ever."""

import re
import sys

from desktop import Program, wait_for
from other_programs import HEIGHT, WIDTH, OtherProgram, attached
from story import expect, letters, play, prepare_data, set_options, use_words

KEYBOARD = """LINHA Palavras
GRUPO Palavras
TECLA TECLA_PREDICAO
TECLA TECLA_PREDICAO
LINHA Texto
GRUPO Texto
""" + letters('tosegz')
OPTIONS = {'NOME_TECLADO': 'Letras', 'TEMPO_DE_PREDICAO': 200, 'POSICAO_INICIAL_JANELA_Y': 460, 'REGISTAR_EVENTOS': 1,
           'NOME_SINTETIZADOR_FALA': 'Nenhum'}


class Safe(OtherProgram):
    """A window with two fields, for a name and for a password; writes both into its file as they are."""

    name, title, environment = 'Cofre', '^Cofre$', {}

    def command(self):
        return [sys.executable, '-B', __file__, 'window', self.file]

    def click_field(self, number):
        """They share the height of the window."""
        place = WIDTH // 2, HEIGHT * (2 * number + 1) // 4
        self.desktop.xdotool('mousemove', '--window', self.window, *place, 'click', 1)

    def fields(self):
        return (self.file.read_text() or '\n').split('\n')

    def text(self):
        return self.fields()[0]

    def secret(self):
        return self.fields()[1]

    def clear(self):
        self.desktop.press('ctrl+a', 'BackSpace')
        wait_for(lambda: not self.text(), 'an empty field')


def window(path):
    import gi
    gi.require_version('Gtk', '3.0')
    from gi.repository import Gtk
    window, box = Gtk.Window(title='Cofre'), Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
    fields = Gtk.Entry(), Gtk.Entry(visibility=False, input_purpose=Gtk.InputPurpose.PASSWORD)
    for field in fields:
        box.pack_start(field, True, True, 0)
        field.connect('changed', lambda _: path.write_text('\n'.join(field.get_text() for field in fields)))
    window.add(box)
    window.show_all()
    Gtk.main()


def story(desktop, program):
    prepare_data(desktop)
    (desktop.data / 'Letras.tec').write_text(KEYBOARD, 'cp1252')
    use_words(desktop, 'segredo 4\ntudo 5\n')
    set_options(desktop, OPTIONS)
    safe = Safe(desktop)
    ondrilo = Program(desktop, program)
    with attached(desktop, safe.name):
        safe.focus()
    ondrilo.click('t')
    ondrilo.click('tudo')
    safe.expect_text('tudo ')

    safe.click_field(1)
    for key in 'seg':
        ondrilo.click(key)
    safe.type('wxy. ')
    ondrilo.click('z')
    wait_for(lambda: safe.secret() == 'segwxy. z', 'the secret')
    expect('segredo' not in ondrilo.keys(), 'a key shows how the secret may go on')
    safe.click_field(0)
    desktop.press('End')
    ondrilo.click('o')
    safe.expect_text('tudo o')

    expect(ondrilo.quit() == 0, 'the program did not end well')
    learned = ''.join(path.read_text('cp1252') for path in desktop.data.glob('generico.p*'))
    log = next(desktop.data.glob('generico *.log')).read_text('cp1252')
    expect('tudo 1' in learned, 'the word beside the secret was not learned, in %r' % learned)
    expect('CHAR_o ' in log, 'the letter beside the secret was not logged')
    expect('wxy' not in learned and not re.search('(_|DOWN_)[SEGWXYZsegwxyz][ \n]|segwxy', log), 'the secret is told')


if sys.argv[1] == 'window':
    from pathlib import Path
    window(Path(sys.argv[2]))
else:
    play(story)

#!/usr/bin/python3
"""Makes the pictures of the therapist's guide with the real program. Run: pictures.py PROGRAM DELIVERED

Plays the guide's story on a private desktop, and writes what is on the screen into images/ beside this file.
"""

import shutil
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[1] / 'tests' / 'desktop'))

from desktop import Desktop, Failure, Program, wait_for  # noqa: E402
from dialogs import Dialog, choose, shown  # noqa: E402

IMAGES = Path(__file__).resolve().parent / 'images'
MENU = '500x200'
BESIDE = (1270, 790)  # where the pointer rests on nothing


def keep(name, *what):
    subprocess.run(['import', *what, '-strip', '-quality', '95', str(IMAGES / ('guia-%s.png' % name))], check=True)


def keep_dialog(name, dialog):
    keep(name, '-frame', '-window', dialog.window)


def new_profile(ondrilo):
    place = ondrilo.place(ondrilo.window)
    items = [ondrilo.atspi.Role.MENU_ITEM]
    ondrilo.click_element(shown(ondrilo, ondrilo.window, 'Perfil', items))
    first = shown(ondrilo, ondrilo.window, 'Novo Perfil...', items)
    keep('menu', '-window', 'root', '-crop', '%s+%d+%d' % (MENU, place.x, place.y), '+repage')
    ondrilo.click_element(first)
    profile = Dialog(ondrilo, 'Novo Perfil de Utilizador')
    ondrilo.desktop.xdotool('type', 'rita')
    keep_dialog('novo-perfil', profile)
    profile.close()
    wait_for(lambda: 'rita' in ondrilo.title(), 'the new profile')


def set_options(ondrilo):
    choose(ondrilo, 'Perfil', 'Opções do Perfil...')
    options = Dialog(ondrilo, 'Opções do Perfil de Utilizador')
    options.click('Teclado de Ecrã')
    options.pick('TeclasGrandes', instead_of='QwertySimples')
    options.control('TeclasGrandes')
    keep_dialog('teclado', options)
    options.click('Acesso')
    options.write('Permanência do Ponteiro Para Premir', '1000')
    keep_dialog('acesso', options)
    options.click('Predição')
    options.write('Máximo de Predições de Palavras', '6')
    keep_dialog('predicao', options)
    options.click('Cores e Tipo de Letra')
    field = 'Cor de Fundo 1  (Teclas de Predição)'
    options.click(field)
    colours = Dialog(ondrilo, field)
    colours.write('HTML:', '#ffe08a')
    colours.close()
    keep_dialog('cores', options)
    options.close()
    wait_for(lambda: 'TeclasGrandes' in ondrilo.title(), 'the keyboard')


def add_abbreviations(ondrilo):
    choose(ondrilo, 'Perfil', 'Dicionário do Perfil', 'Abreviaturas...')
    abbreviations = Dialog(ondrilo, 'Abreviaturas')
    for text in ('bd', 'bom dia', 'obg', 'muito obrigada'):
        abbreviations.enter(text)
    abbreviations.click('bd : bom dia')
    keep_dialog('abreviaturas', abbreviations)
    abbreviations.close()


def set_start(ondrilo):
    choose(ondrilo, 'Ficheiro', 'Opções Gerais...')
    general = Dialog(ondrilo, 'Opções Gerais')
    general.pick('rita', instead_of='generico')
    keep_dialog('opcoes-gerais', general)
    general.close()


def write(desktop, ondrilo):
    desktop.xdotool('mousemove', *BESIDE)
    desktop.xdotool('type', 'quero i')
    wait_for(lambda: 'ir' in ondrilo.keys(), 'the predictions')
    place = ondrilo.place(ondrilo.window)
    keep('a-escrever', '-window', 'root', '-crop',
         '%dx%d+%d+%d' % (place.width, place.height, place.x, place.y), '+repage')


def main():
    program, delivered = (Path(word).resolve() for word in sys.argv[1:3])
    with Desktop() as desktop:
        desktop.install(delivered)
        shutil.copytree(delivered, desktop.data)
        ondrilo = Program(desktop, program)
        new_profile(ondrilo)
        set_options(ondrilo)
        add_abbreviations(ondrilo)
        set_start(ondrilo)
        write(desktop, ondrilo)
        ondrilo.quit()


if __name__ == '__main__':
    try:
        main()
    except Failure as failure:
        sys.exit('pictures: %s' % failure)

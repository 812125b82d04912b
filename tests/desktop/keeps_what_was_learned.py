#!/usr/bin/python3
"""A program that is killed in the middle of a word has lost that word alone, and counts the others once."""

from desktop import Program, wait_for
from story import expect, play, prepare_data, set_option, use_words


def story(desktop, program):
    prepare_data(desktop)
    use_words(desktop)
    set_option(desktop, 'TEMPO_DE_PREDICAO', 200)
    journal = desktop.data / 'generico.jrn'

    def lines(name):
        return (desktop.data / name).read_text('cp1252').splitlines()

    ondrilo = Program(desktop, program)
    desktop.xdotool('type', '--delay', '20', 'tangerina madura. sim abac')
    ondrilo.expect_text('tangerina madura. sim abac')
    wait_for(lambda: journal.exists() and 'sim' in journal.read_text('cp1252'), 'the last whole word in the journal')
    expect(lines('generico.pal') == [], 'words were saved before the end')
    ondrilo.process.kill()
    ondrilo.process.wait(10)

    ondrilo = Program(desktop, program)
    desktop.press('t', 'a')
    ondrilo.click('tangerina')
    ondrilo.expect_text('tangerina ')
    ondrilo.key('madura')  # is the word that followed it
    expect('abac' not in ondrilo.keys(), 'half a word was learned')

    expect(ondrilo.quit() == 0, 'the program did not end well')
    expect(lines('generico.pal') == ['___ 2', 'madura 1', 'sim 1', 'tangerina 2'],
           'the words are %r' % lines('generico.pal'))
    expect('tangerina madura 1' in lines('generico.par'), 'the pairs are %r' % lines('generico.par'))
    expect('tangerina|madura. 1' in lines('generico.frs'), 'the sentences are %r' % lines('generico.frs'))
    expect(not journal.exists(), 'the normal end left a journal')


play(story)

"""Files that another program changes while an icon of them is edited, files that two containers hold an icon of, and files
whose names are written in an unusual way."""
import os

import icons
from forms import EDIT_FACE, REMOVE_QUESTION, REPLACE_QUESTION, Desk, read, write

RED, RED_CELL = (255, 0, 0), (3, 0)
ENTRIES = [(16, 4), (32, 4), (48, 8)]
CHANGED = ' This file has been changed meanwhile. Nothing has been written to it.'
HELD_BY_1 = 'Container 1 holds an icon of this file. Proceed?'


def motifEntry(size, bits, seed=0):
    return icons.entryOf(icons.motif(size, bits, seed), bits)


def images(path):
    return [entry.image for entry in icons.readEntries(path)]


def painted(size, bits, x, y, color):
    picture = icons.motif(size, bits)
    picture[y][x] = color
    return icons.image(picture, bits)


def acceptProposedName(desk, name):
    """Accepts the name that the file dialog proposes, and replaces the file."""
    desk.program.waitForFileDialog()
    assert desk.proposedName() == name, desk.proposedName()
    desk.session.keys('Return')
    desk.program.wait(lambda: 'already exists' in desk.program.dialogText(desk.program.formWithKeys()), 'the question')
    desk.session.keys('alt+y')
    desk.program.waitForNoFileDialog()


def test_an_entry_is_replaced_in_its_file_whatever_the_name_of_the_file(session):
    desk = Desk(session)
    for name in ('MULTI.ICO', 'tools.dat', 'icons'):
        path = write(session, name, icons.icons(*ENTRIES))
        desk.openIcons(path)
        desk.loadAndExit(2)
        desk.waitForIcon(32, path)
        desk.paint([(5, 7)], RED_CELL, RED, 32)
        before = images(path)
        desk.program.menu('File', 'Save As Multi-Icon File ....')
        desk.program.answerBox(REPLACE_QUESTION, 'alt+y')
        acceptProposedName(desk, name)
        desk.program.wait(lambda: images(path) != before, 'the replaced entry')
        assert images(path) == [before[0], painted(32, 4, 5, 7, RED), before[2]]
        assert sorted(os.listdir(session.path())) == [name], os.listdir(session.path())
        desk.waitForIcon(32, path)
        os.remove(path)


def test_what_another_program_adds_to_a_file_is_never_lost(session):
    path = write(session, 'multi.ico', icons.icons(*ENTRIES))
    desk = Desk(session)
    desk.openIcons(path)
    desk.loadAndExit(2)
    desk.waitForIcon(32, path)
    desk.paint([(5, 7)], RED_CELL, RED, 32)

    added = [motifEntry(24, 8)] + icons.readEntries(path)
    write(session, 'multi.ico', icons.fileOf(added))
    desk.program.menu('File', 'Save As Multi-Icon File ....')
    desk.program.answerBox(REPLACE_QUESTION + '3 ', 'alt+y')
    acceptProposedName(desk, 'multi.ico')
    expected = [entry.image for entry in added]
    expected[2] = painted(32, 4, 5, 7, RED)
    desk.program.wait(lambda: images(path) == expected, 'the entry in its new place')

    repainted = icons.readEntries(path)
    repainted[2] = motifEntry(32, 4, seed=9)
    write(session, 'multi.ico', icons.fileOf(repainted))
    desk.program.menu('File', 'Save As Multi-Icon File ....')
    desk.program.answerBox(REPLACE_QUESTION + '3 ', 'alt+y')
    desk.program.answerBox('The original multi-icon file has been changed meanwhile.')
    assert read(path) == icons.fileOf(repainted)


def test_a_listed_file_that_changes_is_listed_again_instead_of_losing_an_entry(session):
    path = write(session, 'multi.ico', icons.icons(*ENTRIES))
    desk = Desk(session)
    desk.openIcons(path)
    changed = icons.fileOf(icons.readEntries(path) + [motifEntry(24, 8)])
    write(session, 'multi.ico', changed)
    desk.pick(1)
    desk.program.press('Remove')
    desk.program.answerBox(REMOVE_QUESTION, 'alt+y')
    desk.program.answerBox(path + CHANGED)
    desk.program.wait(lambda: len(desk.refs()) == 4, 'the list of the file as it is now')
    assert read(path) == changed

    desk.program.press('Reposition')
    desk.shift((1, 1))
    write(session, 'multi.ico', icons.icons(*ENTRIES))
    desk.program.press('Proceed')
    desk.program.answerBox(path + ' Proceed to save re-positioned sequence of icons in file?', 'alt+y')
    desk.program.answerBox(path + CHANGED)
    desk.program.wait(lambda: len(desk.refs()) == 3, 'the list of the file as it is now')
    assert read(path) == icons.icons(*ENTRIES)
    desk.exitBrowser()


def test_a_file_that_got_more_icons_is_not_saved_over(session):
    path = write(session, 'single.ico', icons.icons((32, 4)))
    desk = Desk(session)
    desk.openFile(path)
    desk.waitForIcon(32, path)
    desk.paint([(5, 7)], RED_CELL, RED, 32)
    write(session, 'single.ico', icons.icons(*ENTRIES))
    desk.program.command('ctrl+s')
    desk.program.answerBox(path + CHANGED)
    other = session.path('other.ico')
    desk.program.chooseFile(other)
    desk.waitForIcon(32, other)
    assert read(path) == icons.icons(*ENTRIES)
    assert images(other) == [painted(32, 4, 5, 7, RED)]


def test_a_file_of_another_container_is_saved_over_only_with_consent(session):
    path = write(session, 'single.ico', icons.icons((32, 4)))
    other = write(session, 'other.ico', icons.icons((32, 4), seed=3))
    desk = Desk(session)
    desk.openFile(path)
    desk.waitForIcon(32, path)
    desk.program.menu('Edit', 'Copy To Another Container', 'To Container 2')
    desk.program.answerBox('Copy current icon to Container 2.', 'alt+y')
    desk.program.press('Container 2')
    desk.waitForIcon(32, path)
    desk.paint([(5, 7)], RED_CELL, RED, 32)
    desk.program.command('ctrl+s')
    desk.program.answerBox(HELD_BY_1, 'alt+n')
    assert read(path) == icons.icons((32, 4))
    desk.program.command('ctrl+s')
    desk.program.answerBox(HELD_BY_1, 'alt+y')
    desk.program.wait(lambda: images(path) == [painted(32, 4, 5, 7, RED)], 'the copy in the file')
    desk.session.click(desk.program.pixelPoint(9, 9, 32))  # the tool is still selected
    desk.waitForPixel(9, 9, 32, RED)
    saved = read(path)
    desk.program.command('ctrl+s')  # no question any more
    desk.program.wait(lambda: read(path) != saved, 'the second save')

    desk.program.press('Container 3')
    desk.openFile(other)
    desk.waitForIcon(32, other)
    desk.program.command('ctrl+t')
    saved = read(path)
    desk.program.chooseFile(path, replace=True)
    desk.program.answerBox(HELD_BY_1, 'alt+n')
    assert read(path) == saved
    desk.program.command('ctrl+t')
    desk.program.chooseFile(path, replace=True)
    desk.program.answerBox(HELD_BY_1, 'alt+y')
    desk.program.wait(lambda: images(path) == images(other), 'the other icon in the file')

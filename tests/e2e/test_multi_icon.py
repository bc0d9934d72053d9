"""Files of several icons: loading, replacing, adding, removing, moving and saving icons, by mouse and by keyboard, and
what independent programs read afterwards."""
import os

import icons
import readers
from forms import ADD_FACE, EDIT_FACE, ICONS, POSITION, REMOVE_QUESTION, SEQUENCE, Desk, read, write

RED, RED_CELL = (255, 0, 0), (3, 0)
IN_PANEL = 'As currently there is at least an icon from this file loaded in Icons Panel, '
SAME_ICON = '16-color 32 x 32 Icon of same size and color palette already in '


def motifs(*sizesAndBits, seed=0):
    return [(icons.motif(size, bits, seed), bits) for size, bits in sizesAndBits]


FIRST = [(16, 4), (32, 4), (32, 8), (48, 8), (64, 8)]
SECOND = [(16, 8), (24, 24), (32, 4)]
THIRD = [(16, 4), (32, 8), (48, 4), (64, 4)]


def writeIcons(session, name, entries, seed=0):
    return write(session, name, icons.icons(*entries, seed=seed))


# Main use cases ---------------------------------------------------------------------------------------------------

def test_of_two_loaded_icons_one_replaces_its_entry_and_the_other_goes_into_another_file(session):
    first, second = writeIcons(session, 'first.ico', FIRST), writeIcons(session, 'second.ico', SECOND, seed=5)
    before = icons.readEntries(first), icons.readEntries(second)
    desk = Desk(session)
    desk.openIcons(first)
    assert desk.refs() == ['Ref 1, 4 BPP, 16-Color, 16 x 16', 'Ref 2, 4 BPP, 16-Color, 32 x 32',
                           'Ref 3, 8 BPP, 256-Color, 32 x 32', 'Ref 4, 8 BPP, 256-Color, 48 x 48'], desk.refs()
    desk.waitForSelected(3)
    desk.program.need('Ref 5, 8 BPP, 256-Color, 64 x 64', role='list item')
    assert not desk.nameless(), desk.nameless()
    desk.load(2)
    desk.loadAndExit(4, container=2)
    desk.waitForIcon(48, first)

    saveAloneAndAdd(desk, second)
    expected = motifs(*SECOND, seed=5)
    readers.assertIcons(second, motifs(FIRST[3]) + expected)
    assert [entry.image for entry in icons.readEntries(second)[1:]] == [entry.image for entry in before[1]]

    desk.program.press('Container 1')
    desk.waitForIcon(32, first)
    pictures = motifs(*FIRST)
    desk.paint([(5, 7), (0, 0)], RED_CELL, RED, 32)
    pictures[1][0][7][5] = pictures[1][0][0][0] = RED
    desk.replaceIn(first, replace=True)
    desk.program.wait(lambda: read(first) != icons.icons(*FIRST), 'the replaced entry')
    desk.waitForPixel(5, 7, 32, RED)  # a save does not change the Editing Area
    readers.assertIcons(first, pictures)
    readers.assertKept(first, before[0], changed=[1])
    assert sorted(os.listdir(session.path())) == ['alone.ico', 'first.ico', 'second.ico']


def saveAloneAndAdd(desk, target):
    """An icon from a file of several is saved as a single-icon file before it is added to another file."""
    desk.program.command('ctrl+t')
    desk.program.answerBox('Reminder: The original icon file contains multiple icons.')
    alone = desk.session.path('alone.ico')
    desk.program.answerFileDialog(alone)
    desk.waitForIcon(48, alone)
    desk.waitForPixel(20, 30, 48, icons.motif(48, 8)[30][20])
    readers.assertIcons(alone, motifs(FIRST[3]))
    desk.addTo(target)
    desk.waitForForm(ADD_FACE)
    desk.program.need('256-color Size: 48x48')
    assert desk.refs() == ['Ref 1, 8 BPP, 256-Color, 16 x 16', 'Ref 2, 24 BPP, True-Color, 24 x 24',
                           'Ref 3, 4 BPP, 16-Color, 32 x 32'], desk.refs()
    assert not desk.nameless(), desk.nameless()
    assert desk.held(POSITION) == '4', 'the new one comes last unless another position is chosen'
    desk.addAtPosition(1)
    desk.program.answerBox('Insert to position ref 1.', 'alt+y')
    desk.waitForNoForm(ADD_FACE)
    desk.waitForPixel(20, 30, 48, icons.motif(48, 8)[30][20])


def test_an_entry_is_removed_and_a_file_is_reversed(session):
    third, fourth = writeIcons(session, 'third.ico', THIRD), writeIcons(session, 'fourth.ico', FIRST)
    before = icons.readEntries(third), icons.readEntries(fourth)
    desk = Desk(session)
    desk.openIcons(third)
    desk.pick(2)
    desk.program.press('Remove')
    desk.program.answerBox(REMOVE_QUESTION, 'alt+n')
    assert icons.readEntries(third) == before[0]
    desk.program.press('Remove')
    desk.program.answerBox(REMOVE_QUESTION, 'alt+y')
    desk.program.wait(lambda: len(desk.refs()) == 2, 'the list without the entry')
    assert desk.refs() == ['Ref 1, 4 BPP, 16-Color, 16 x 16', 'Ref 2, 4 BPP, 16-Color, 48 x 48'], desk.refs()
    desk.waitForSelected(2)
    desk.exitBrowser()
    readers.assertIcons(third, [motif for index, motif in enumerate(motifs(*THIRD)) if index != 1])
    readers.assertKept(third, [entry for index, entry in enumerate(before[0]) if index != 1])

    desk.openIcons(fourth)
    desk.program.press('Reposition')
    desk.program.wait(lambda: len(desk.refs(SEQUENCE)) == 5, 'all entries in the pane')
    assert not desk.nameless(), desk.nameless()
    desk.program.press('Ref 5,', role='list item', startsWith=True)
    desk.waitForSelected(5)  # the pane moves icons of all sizes
    desk.shift((5, -4), (1, 3), (2, 2), (3, 1))
    assert [text.split(',')[0] for text in desk.refs(SEQUENCE)] == ['Ref 5', 'Ref 4', 'Ref 3', 'Ref 2', 'Ref 1'], desk.refs(SEQUENCE)
    desk.program.press('Proceed')
    desk.program.answerBox(fourth + ' Proceed to save re-positioned sequence of icons in file?', 'alt+y')
    desk.program.answerBox('Repositioned icons sequence in ' + fourth)
    desk.program.wait(lambda: desk.refs()[0] == 'Ref 2, 8 BPP, 256-Color, 48 x 48', 'the new sequence')
    desk.exitBrowser()
    readers.assertIcons(fourth, motifs(*reversed(FIRST)))
    readers.assertKept(fourth, before[1][::-1])


def test_the_road_by_keyboard_alone(session):
    first, second = writeIcons(session, 'first.ico', FIRST), writeIcons(session, 'second.ico', SECOND)
    single = writeIcons(session, 'single.ico', [(48, 8)])
    desk = Desk(session)
    desk.openIcons(first)
    desk.program.goTo(ICONS, role='list')
    desk.program.keys('Home', 'Down')
    desk.waitForSelected(2)
    desk.program.goTo('Load & Exit')
    desk.program.keys('space')
    desk.waitForNoForm(EDIT_FACE)
    desk.waitForIcon(32, first)
    assert read(first) == icons.icons(*FIRST)

    desk.program.command('ctrl+o')
    desk.program.answerFileDialog(single)
    desk.waitForIcon(48, single)
    desk.program.menuByKeys('alt+f', 't')
    desk.program.chooseFile(second)
    desk.waitForForm(ADD_FACE)
    desk.program.goTo(ICONS, role='list')
    desk.program.keys('Home')
    desk.waitForSelected(1)
    desk.program.goTo(POSITION, role='combo box')
    desk.program.keys('Home', 'Down')
    desk.program.wait(lambda: desk.held(POSITION) == '2', 'position 2')
    desk.program.goTo('Save')
    desk.program.keys('space')
    desk.program.answerBox('Insert to position ref 2.', 'alt+y')
    desk.waitForNoForm(ADD_FACE)
    pictures = motifs(*SECOND)
    readers.assertIcons(second, pictures[:1] + motifs((48, 8)) + pictures[1:])

    desk.openIcons(second)
    desk.program.goTo('Reposition')
    desk.program.keys('space')
    desk.program.wait(lambda: len(desk.refs(SEQUENCE)) == 4, 'the pane')
    desk.program.goTo('Down')
    desk.program.keys('space', 'space')
    desk.program.goTo('Proceed')
    desk.program.keys('space')
    desk.program.answerBox(second, 'alt+y')
    desk.program.answerBox('Repositioned icons sequence in ')
    desk.program.wait(lambda: desk.refs(), 'the list')
    desk.program.keys('Escape')
    desk.waitForNoForm(EDIT_FACE)
    readers.assertIcons(second, motifs((48, 8)) + pictures[1:2] + pictures[:1] + pictures[2:])


# Entries as files of their own -----------------------------------------------------------------------------------

def test_one_entry_or_all_of_them_are_written_as_files_of_their_own(session):
    tools = writeIcons(session, 'tools.ico', [(16, 4), (32, 24), (48, 8), (64, 8)])
    before = icons.readEntries(tools)
    os.mkdir(session.path('split'))
    desk = Desk(session)
    desk.openIcons(tools)
    desk.pick(2)
    desk.program.press('Save Single')
    desk.program.wait(lambda: desk.proposedName() == 'tools_32_24bpp.ico', 'the proposed name')
    saved = session.path('one.ico')
    desk.program.chooseFile(saved)
    desk.program.wait(lambda: os.path.isfile(saved), 'the file')
    readers.assertIcons(saved, motifs((32, 24)))
    assert icons.readEntries(saved)[0].image == before[1].image

    desk.program.press('Split Save')
    chooseFolder(desk, 'split')
    desk.program.answerBox(f'Single-icon files will be saved as {session.path("split/tools")}_(Size)_(Color), ... Totally 3 items', 'alt+y')
    names = ['tools_16_16.ico', 'tools_32_24bpp.ico', 'tools_48_256.ico']
    desk.program.wait(lambda: sorted(os.listdir(session.path('split'))) == names, 'the files')
    desk.waitForSelected(2)
    desk.exitBrowser()
    for index, one in enumerate(names):
        readers.assertIcons(session.path('split/' + one), motifs([(16, 4), (32, 24), (48, 8)][index]))
        assert icons.readEntries(session.path('split/' + one))[0].image == before[index].image
    assert read(tools) == icons.fileOf(before)


def chooseFolder(desk, name):
    """The folder chooser starts in the folder of the files."""
    desk.waitForForm('Directory dialog')
    desk.program.press(name)
    desk.program.keys('Return')
    desk.program.wait(lambda: desk.program.value('Selected folder').endswith(name), 'the folder')
    desk.program.press('OK')
    desk.program.answerBox('There is no any file directly in selected folder. Proceed still?', 'alt+y')
    desk.waitForNoForm('Directory dialog')


# Refusals --------------------------------------------------------------------------------------------------------

def test_what_would_harm_a_file_is_refused(session):
    in8Bits = icons.entryOf(icons.motif(32, 4, seed=2), 8, icons.COLORS_16 * 16)  # which are counted as 16 colours
    alike = write(session, 'alike.ico', icons.fileOf([icons.entryOf(icons.motif(32, 4), 4), in8Bits,
                                                      icons.entryOf(icons.motif(16, 4), 4)]))
    single = writeIcons(session, 'single.ico', [(32, 4)])
    kept = read(alike), read(single)
    desk = Desk(session)
    desk.openIcons(alike)
    desk.loadAndExit(2)
    desk.waitForIcon(32, alike)
    desk.program.menu('File', 'Save As Multi-Icon File ....')
    desk.program.answerBox('The current icon is originated from Index Ref. 2 ', 'alt+y')
    desk.program.answerBox(SAME_ICON + 'original multi-file.')

    desk.program.command('ctrl+m')
    desk.waitForForm(EDIT_FACE)
    desk.program.press('Remove')
    desk.program.answerBox(IN_PANEL + 'hence no deletion is allowed.')
    desk.program.press('Reposition')
    desk.program.answerBox(IN_PANEL + 'hence no reposition is allowed.')
    desk.exitBrowser()

    desk.program.press('Container 2')
    desk.program.command('ctrl+o')
    desk.program.answerFileDialog(single)
    desk.waitForIcon(32, single)
    desk.addTo(alike)
    desk.program.answerBox('File being added to is currently opened in Icons Panel ref 1.')
    desk.addTo(single)
    desk.program.answerBox('Cannot add to original file itself.')
    copied = write(session, 'copied.ico', kept[0])
    desk.addTo(copied)
    desk.program.answerBox(SAME_ICON + 'file.')

    desk.program.press('Container 1')
    desk.waitForIcon(32, alike)
    os.remove(alike)
    desk.program.menu('File', 'Save As Multi-Icon File ....')
    desk.program.answerBox(alike + ' file can no longer be found!')
    assert (read(copied), read(single)) == kept


def test_escape_leaves_every_form_and_file_as_it_was(session):
    first, second = writeIcons(session, 'first.ico', FIRST), writeIcons(session, 'second.ico', SECOND)
    desk = Desk(session)
    desk.openIcons(first)
    for button, form in (('Split Save', 'Directory dialog'), ('Save Single', None)):
        desk.program.press(button)
        if form:
            desk.waitForForm(form)
            desk.program.keys('Escape')
            desk.waitForNoForm(form)
        else:
            desk.program.giveUpFile()
        assert len(desk.program.dialogs()) == 1
    desk.program.press('Reposition')
    desk.program.need(SEQUENCE, role='list')
    desk.program.keys('Escape')
    desk.program.wait(lambda: not desk.program.find(SEQUENCE, role='list'), 'the pane to close')
    if desk.form(EDIT_FACE):
        desk.program.keys('Escape')
    desk.waitForNoForm(EDIT_FACE)
    assert desk.program.value('Icon size') == ''

    desk.program.command('ctrl+o')
    desk.program.answerFileDialog(writeIcons(session, 'single.ico', [(48, 8)]))
    desk.program.wait(lambda: desk.program.value('Icon size') == '48 x 48', 'the icon')
    desk.addTo(second)
    desk.waitForForm(ADD_FACE)
    desk.program.keys('Escape')
    desk.waitForNoForm(ADD_FACE)
    assert (read(first), read(second)) == (icons.icons(*FIRST), icons.icons(*SECOND))


def test_files_that_change_while_a_form_is_open_lose_nothing(session):
    first, second = writeIcons(session, 'first.ico', FIRST), writeIcons(session, 'second.ico', SECOND)
    desk = Desk(session)
    desk.openIcons(first)
    desk.loadAndExit(2)
    desk.waitForIcon(32, first)
    desk.program.menu('File', 'Save As Multi-Icon File ....')
    desk.program.answerBox('The current icon is originated from Index Ref. 2 ', 'alt+y')
    desk.program.chooseFile(first, replace=True, before=lambda: os.chmod(first, 0o444))
    desk.program.answerBox('File is read-only.')
    assert read(first) == icons.icons(*FIRST)

    desk.openIcons(second)
    os.remove(second)
    desk.pick(1)  # the file is in memory while the form is open
    desk.program.keys('Escape')
    desk.waitForNoForm(EDIT_FACE)
    assert not os.path.exists(second)

"""The main use cases on real files, copied from the corpus if it is beside the repository: three independent programs
read every picture that was not changed as before."""
import os
import shutil
import unittest

import icons
import readers
from forms import (ADD_FACE, ALPHA_REMINDER, HEADER_DIFF, HOTSPOT_X, HOTSPOT_Y, REMOVE_QUESTION, SEQUENCE, Desk, read)

CORPUS = os.path.join(os.path.dirname(os.path.realpath(__file__)), *['..'] * 3, 'shared', 'corpus')
RED, RED_CELL = (255, 0, 0), (3, 0)
FIRST, SECOND = 'ico/nsis-common__orange-install.ico', 'ico/nsis-common__arrow-uninstall.ico'
THIRD, FOURTH = 'ico/tortoisehg__TortoiseMerge.ico', 'ico/hugin-data__hugin.ico'
LYING, CURSOR, ALPHA_CURSOR = 'ico/qutemol__OldQutemol.ico', 'cur/lazarus-src-2.2__laz_vt_moveew.cur', 'cur/shutter__Help.cur'
ICON_FILES = (FIRST, SECOND, THIRD, FOURTH, LYING)


class Copies:
    def __init__(self, session):
        if not os.path.isdir(CORPUS):
            raise unittest.SkipTest(f'no corpus in {CORPUS}: no real file was tried')
        self.session = session
        self.pictures, self.entries = {}, {}
        for name in (*ICON_FILES, CURSOR, ALPHA_CURSOR):
            shutil.copyfile(os.path.join(CORPUS, name), self.path(name))
        for name in ICON_FILES:
            self.entries[name] = icons.readEntries(self.path(name))
            self.pictures[name] = {who: pictures(self.path(name)) for who, pictures in readers.PICTURES.items()}
        self.letDirectoryLie()

    def letDirectoryLie(self):
        """No real file can be loaded and states a wrong number of colours: this one states 16 colours for 8 bits."""
        entries = [entry._replace(colors=16, bits=4) if entry.bits == 8 else entry for entry in self.entries[LYING]]
        self.lyingBytes = icons.fileOf(entries)
        with open(self.path(LYING), 'wb') as file:
            file.write(self.lyingBytes)

    def path(self, name):
        return self.session.path(os.path.basename(name))

    def isUntouched(self, name):
        return read(self.path(name)) == read(os.path.join(CORPUS, name))

    def assertRead(self, path, *wanted):
        """Checks that each reader sees these pictures in that file, each (name, index of its former entry)."""
        for who, pictures in readers.PICTURES.items():
            readers.assertSame(pictures(path), [self.pictures[name][who][index] for name, index in wanted], who, path)
        sizes = [(entry.width or 256, entry.height or 256) for entry in icons.readEntries(path)]
        assert readers.sizesByImageMagick(path, 'ico') == sizes
        listed = [entry[1:3] for entry in readers.listByIcotool(path)]
        assert listed == sizes, f'icotool lists {listed}, not {sizes}'


def test_real_files_go_the_whole_road(session):
    copies = Copies(session)
    desk = Desk(session)
    replaceOneAndAddTheOther(copies, desk)
    removeAndReverse(copies, desk)
    salvage(copies, desk)
    saveCursors(copies, desk)


def replaceOneAndAddTheOther(copies, desk):
    first, second, alone = copies.path(FIRST), copies.path(SECOND), copies.session.path('alone.ico')
    desk.openIcons(first)
    desk.load(4)
    desk.loadAndExit(9, container=2)
    desk.program.answerBox(ALPHA_REMINDER)
    desk.waitForIcon(48, first)
    assert copies.isUntouched(FIRST)
    desk.program.command('ctrl+t')
    desk.program.answerBox('Reminder: The original icon file contains multiple icons.')
    desk.program.answerFileDialog(alone)
    desk.waitForIcon(48, alone)
    copies.assertRead(alone, (FIRST, 8))
    desk.addTo(second)
    desk.addAtPosition(1)
    desk.program.answerBox('Insert to position ref 1.', 'alt+y')
    desk.waitForNoForm(ADD_FACE)
    copies.assertRead(second, (FIRST, 8), *[(SECOND, index) for index in range(4)])

    desk.program.press('Container 1')
    desk.waitForIcon(32, first)
    desk.paint([(3, 4)], RED_CELL, RED, 32)
    desk.replaceIn(first, replace=True)
    desk.program.wait(lambda: not copies.isUntouched(FIRST), 'the replaced entry')
    for pictures in copies.pictures[FIRST].values():
        pictures[3][4][3] = RED + (255,)
    copies.assertRead(first, *[(FIRST, index) for index in range(9)])
    readers.assertKept(first, copies.entries[FIRST], changed=[3])


def removeAndReverse(copies, desk):
    third, fourth = copies.path(THIRD), copies.path(FOURTH)
    desk.openIcons(third)
    desk.pick(2)
    desk.program.press('Remove')
    desk.program.answerBox(REMOVE_QUESTION, 'alt+y')
    desk.program.wait(lambda: len(desk.refs()) == 5, 'the list without the entry')
    desk.exitBrowser()
    copies.assertRead(third, *[(THIRD, index) for index in (0, 2, 3, 4, 5)])

    desk.openIcons(fourth)
    desk.program.press('Reposition')
    desk.program.wait(lambda: len(desk.refs(SEQUENCE)) == 7, 'the pane')
    # Ref 4, a PNG of 128 x 128, is shown too. The others move past it.
    desk.shift((7, -6), (6, -5), (5, -4), (1, 3), (2, 2), (3, 1))
    desk.program.press('Proceed')
    desk.program.answerBox(fourth, 'alt+y')
    desk.program.answerBox('Repositioned icons sequence in ')
    desk.program.wait(lambda: desk.refs(), 'the list')
    desk.exitBrowser()
    copies.assertRead(fourth, *[(FOURTH, index) for index in reversed(range(7))])
    readers.assertKept(fourth, copies.entries[FOURTH][::-1])


def salvage(copies, desk):
    lying, saved = copies.path(LYING), copies.session.path('salvaged.ico')
    desk.openIcons(lying)
    desk.loadAndExit(2)
    desk.program.answerBox('Reminder: Header entries in the original file are discrepant.')
    desk.program.menu('Inquiry', 'Enquiry - Original Header Entry')
    desk.waitForForm(HEADER_DIFF)
    desk.program.press('Salvage')
    desk.program.chooseFile(saved)
    desk.program.answerBox('Salvage to ', 'alt+y')
    desk.program.answerBox('File salvaged to ')
    desk.program.press('Exit')
    desk.waitForNoForm(HEADER_DIFF)
    assert [entry.bits for entry in icons.readEntries(lying)] == [4, 4, 4, 24]
    assert [entry.bits for entry in icons.readEntries(saved)] == [8, 8, 8, 24]
    copies.assertRead(saved, *[(LYING, index) for index in range(4)])
    assert read(lying) == copies.lyingBytes


def saveCursors(copies, desk):
    # The first one has a palette of sixteen colours and uses two.
    for name, bits in ((CURSOR, 1), (ALPHA_CURSOR, 32)):
        saved = copies.session.path(f'saved{bits}.cur')
        desk.openCursor(copies.path(name))
        if bits == 32:
            desk.program.answerBox('Reminder: The original cursor is with Alpha Channel.')
        desk.waitForIcon(32, copies.path(name))
        desk.program.menu('File', 'Save As Cursor')
        desk.program.need(HOTSPOT_X, role='combo box')
        desk.waitForRest(*icons.readEntries(copies.path(name))[0][4:6], 32)  # a click while it blinks has no effect
        desk.session.click(desk.program.pixelPoint(6, 11, 32))
        desk.program.wait(lambda: (desk.held(HOTSPOT_X), desk.held(HOTSPOT_Y)) == ('6', '11'), 'the hot spot')
        desk.program.press('Proceed')
        desk.program.chooseFile(saved)
        desk.program.wait(lambda: os.path.isfile(saved), 'the cursor')
        picture = readers.picturesByIcotool(copies.path(name))[0]
        readers.assertCursor(saved, picture, bits, (6, 11))
        assert copies.isUntouched(name)

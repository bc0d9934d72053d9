"""Cursors: opening, setting the hot spot by mouse and by the lists, showing it, saving; icons that are refused."""
import os

import icons
import readers
from forms import HOTSPOT_X, HOTSPOT_Y, Desk, read, write

SIZE = 32
HOT_RED, HOT_WHITE = (255, 0, 0), (255, 255, 255)
BLINK_POLL_SECONDS = 0.02  # a phase is short
PROCEED, SHOW = 'Proceed', 'Show hotspot'


def openPanel(desk):
    desk.program.menu('File', 'Save As Cursor')
    desk.program.need(HOTSPOT_X, role='combo box')


def hotspot(desk):
    return desk.held(HOTSPOT_X), desk.held(HOTSPOT_Y)


def waitForHotspot(desk, x, y):
    desk.program.wait(lambda: hotspot(desk) == (str(x), str(y)), f'the hot spot {x}, {y} in the lists')


def seesBlink(desk, x, y, start):
    """Checks that the pixel turns red after `start`, and finally has its former colour."""
    point = desk.program.pixelPoint(x, y, SIZE)
    before = desk.session.colorAt(point)
    assert before not in (HOT_RED, HOT_WHITE)
    start()
    desk.program.wait(lambda: desk.session.colorAt(point) == HOT_RED, f'pixel {x}, {y} to turn red', poll=BLINK_POLL_SECONDS)
    desk.program.wait(lambda: desk.session.colorAt(point) == HOT_WHITE, f'pixel {x}, {y} to turn white', poll=BLINK_POLL_SECONDS)
    assert desk.waitForRest(x, y, SIZE) == before


def saveCursor(desk, name):
    path = desk.session.path(name)
    desk.program.press(PROCEED)
    desk.program.chooseFile(path)
    desk.program.wait(lambda: os.path.isfile(path), 'the cursor')
    return path


def test_a_cursor_is_saved_with_the_hot_spot_that_was_clicked_or_chosen(session):
    picture = icons.motif(SIZE, 4)
    opened = write(session, 'hand.cur', icons.cursor(picture, 4, 12, 20))
    desk = Desk(session)
    desk.openCursor(opened)
    desk.waitForIcon(SIZE, opened)
    seesBlink(desk, 12, 20, lambda: desk.program.command('ctrl+h'))
    openPanel(desk)
    waitForHotspot(desk, 12, 20)
    assert not desk.nameless(), desk.nameless()
    assert desk.waitForRest(12, 20, SIZE) == picture[20][12]

    seesBlink(desk, 7, 9, lambda: session.click(desk.program.pixelPoint(7, 9, SIZE)))
    waitForHotspot(desk, 7, 9)
    readers.assertCursor(saveCursor(desk, 'clicked.cur'), picture, 4, (7, 9))
    desk.waitForPixel(7, 9, SIZE, picture[9][7])  # a save does not change the Editing Area

    if not desk.program.find(HOTSPOT_X, role='combo box'):
        openPanel(desk)
    desk.choose(HOTSPOT_X, 3)
    desk.program.wait(lambda: desk.held(HOTSPOT_X) == '3', 'x to be chosen')
    desk.program.goTo(HOTSPOT_Y, role='combo box')
    desk.program.keys('End')
    waitForHotspot(desk, 3, 31)
    seesBlink(desk, 3, 31, lambda: desk.program.press(SHOW))
    readers.assertCursor(saveCursor(desk, 'chosen.cur'), picture, 4, (3, 31))
    assert desk.program.value('File') == opened, 'the icon is still the opened one'
    assert read(opened) == icons.cursor(picture, 4, 12, 20)


def test_an_icon_becomes_a_cursor_and_alpha_stays(session):
    alpha = icons.motif(SIZE, 32)
    opened = write(session, 'alpha.cur', icons.cursor(alpha, 32, 1, 2))
    desk = Desk(session)
    desk.openCursor(opened)
    desk.program.answerBox('Reminder: The original cursor is with Alpha Channel.')
    openPanel(desk)
    waitForHotspot(desk, 1, 2)
    readers.assertCursor(saveCursor(desk, 'alpha again.cur'), alpha, 32, (1, 2))

    for bits in (1, 8, 24):
        icon = write(session, f'icon{bits}.ico', icons.icons((SIZE, bits)))
        desk.openFile(icon)
        desk.waitForIcon(SIZE, icon)
        openPanel(desk)
        waitForHotspot(desk, 0, 0)
        readers.assertCursor(saveCursor(desk, f'icon{bits}.cur'), icons.motif(SIZE, bits), bits, (0, 0))


def test_a_close_while_the_hot_spot_blinks_ends_the_program(session):
    picture = icons.motif(SIZE, 4)
    desk = Desk(session)
    desk.openCursor(write(session, 'hand.cur', icons.cursor(picture, 4, 12, 20)))
    desk.program.wait(lambda: desk.program.value('Icon size') == '32 x 32', 'the cursor')
    point = desk.program.pixelPoint(12, 20, SIZE)
    desk.program.command('ctrl+h')
    desk.program.wait(lambda: session.colorAt(point) in (HOT_RED, HOT_WHITE), 'the blinking', poll=BLINK_POLL_SECONDS)
    session.keys('alt+F4')
    assert desk.program.waitForEnd() == 0


def test_what_is_no_cursor_of_this_kind_is_refused(session):
    picture = icons.motif(SIZE, 4)
    two = icons.fileOf([icons.entryOf(picture, 4)] * 2, icons.CURSOR)
    bad = {'empty.cur': b'', 'outside.cur': icons.cursor(picture, 4, 32, 0), 'two.cur': two, 'icon.cur': icons.icons((SIZE, 4)),
           'small.cur': icons.cursor(icons.motif(24, 4), 4, 0, 0)}
    desk = Desk(session)
    for name, content in bad.items():
        path = write(session, name, content)
        desk.openCursor(path)
        desk.program.answerBox(path + ' Invalid cursor file')
    desk.openFile(write(session, 'small.ico', icons.icons((24, 4))))
    desk.program.wait(lambda: desk.program.value('Icon size') == '24 x 24', 'the icon')
    desk.program.openMenu('File')
    assert not desk.program.isEnabled(desk.program.need('Save As Cursor', startsWith=True, role='menu item'))
    session.keys('Escape', 'Escape')
    desk.program.waitForNoMenu()

    desk.openFile(write(session, 'right.ico', icons.icons((SIZE, 4))))
    desk.program.wait(lambda: desk.program.value('Icon size') == '32 x 32', 'the icon')
    openPanel(desk)
    desk.program.goTo(HOTSPOT_X, role='combo box')
    desk.program.keys('Escape')
    desk.program.wait(lambda: not desk.program.find(HOTSPOT_X, role='combo box'), 'the Panel to close')
    openPanel(desk)
    locked = write(session, 'locked.cur', b'')
    desk.program.press(PROCEED)
    desk.program.chooseFile(locked, replace=True, before=lambda: os.chmod(locked, 0o444))
    desk.program.answerBox('File is read-only You may save it under a different file name or reset the file attributes.')
    assert read(locked) == b''

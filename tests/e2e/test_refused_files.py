"""Icon files that cannot be opened directly: unsaved work survives them, and the icons that they hold can be loaded."""
import icons
from dropping import drop
from forms import CONTAINER, EDIT_FACE, Desk, read, write

RED, RED_CELL = (255, 0, 0), (3, 0)
DAMAGED_PNG = b'\x89PNG\r\n\x1a\n\0\0\0\rIHDR' + b'\0\0\0\x20' * 2 + bytes(52)
SAVE_QUESTION = 'Save current icon to file?'
REFUSAL = ('Invalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48. '
           'Please try to use Open Bitmap File menu instead. It holds 2 icons of these sizes all the same. Show them?')


def largeFirst():
    """Images of 256x256, 16x16 and 32x32."""
    large = icons.entryOf(icons.motif(48, 24), 24, width=0, height=0)
    return icons.fileOf([large, icons.entryOf(icons.motif(16, 8), 8), icons.entryOf(icons.motif(32, 4), 4)])


def test_a_file_that_cannot_be_decoded_leaves_unsaved_work_and_its_undo(session):
    good = write(session, 'good.ico', icons.icons((32, 4)))
    bad = write(session, 'bad.ico', icons.fileOf([icons.entryOf(icons.motif(32, 24), 24)._replace(image=DAMAGED_PNG, size=len(DAMAGED_PNG))]))
    desk = Desk(session, good)
    desk.waitForIcon(32, good)
    desk.paint([(5, 7)], RED_CELL, RED, 32)
    before = desk.session.colorAt(desk.program.pixelPoint(6, 7, 32))
    for _ in range(2):
        desk.program.command('ctrl+o')
        desk.program.answerBox(SAVE_QUESTION, 'alt+n')
        desk.program.chooseFile(bad)
        desk.program.answerBox(bad + ' Failed to load this file')
        desk.waitForIcon(32, good)
        desk.waitForPixel(5, 7, 32, RED)
    assert desk.session.colorAt(desk.program.pixelPoint(6, 7, 32)) == before
    desk.program.command('ctrl+z')
    desk.waitForPixel(5, 7, 32, icons.motif(32, 4)[7][5])
    desk.program.command('ctrl+r')
    desk.waitForPixel(5, 7, 32, RED)
    assert read(good) == icons.icons((32, 4))
    desk.program.command('alt+F4')
    desk.program.answerBox('The following is not saved yet: Icon Seq 1 ' + good, 'alt+n')
    desk.program.command('ctrl+s')
    desk.program.wait(lambda: read(good) != icons.icons((32, 4)), 'the work to be saved')


def test_the_icons_of_a_file_whose_first_image_is_of_256x256_are_shown_and_loaded(session):
    path = write(session, 'large.ico', largeFirst())
    desk = Desk(session)
    for key, isShown in (('alt+n', False), ('Escape', False), ('alt+y', True)):
        desk.program.command('ctrl+o')
        desk.program.chooseFile(path)
        desk.program.answerBox(f'{path} {REFUSAL}', key)
        assert bool(desk.form(EDIT_FACE)) == isShown, key
    desk.waitForForm(EDIT_FACE)
    assert desk.refs() == ['Ref 2, 8 BPP, 256-Color, 16 x 16', 'Ref 3, 4 BPP, 16-Color, 32 x 32'], desk.refs()
    desk.waitForSelected(3)
    desk.loadAndExit(2)
    desk.waitForIcon(16, path)
    desk.waitForPixel(5, 9, 16, icons.motif(16, 8)[9][5])
    assert read(path) == largeFirst()


def test_the_command_line_and_the_history_offer_them_too(session):
    path = write(session, 'large.ico', largeFirst())
    desk = Desk(session, path, window=False)
    desk.program.answerBox(f'{path} {REFUSAL}', 'alt+y')
    desk.waitForForm(EDIT_FACE)
    desk.loadAndExit(3)
    desk.waitForIcon(32, path)
    desk.program.menu('Edit', 'Clear Container')
    desk.program.answerBox('Clear current icon from container. Proceed?', 'alt+y')
    desk.program.wait(lambda: not desk.program.value('Status 3'), 'the empty container')
    desk.program.menuByKeys('alt+f', '1')
    desk.program.answerBox(f'{path} {REFUSAL}', 'alt+y')
    desk.waitForForm(EDIT_FACE)
    desk.loadAndExit(2)
    desk.waitForIcon(16, path)


def test_a_drop_keeps_unsaved_work_and_offers_icons_for_its_container(session):
    good, path = write(session, 'good.ico', icons.icons((32, 4))), write(session, 'large.ico', largeFirst())
    bad = write(session, 'bad.ico', icons.fileOf([icons.entryOf(icons.motif(32, 24), 24)._replace(image=DAMAGED_PNG, size=len(DAMAGED_PNG))]))
    desk = Desk(session, good)
    desk.waitForIcon(32, good)
    desk.paint([(5, 7)], RED_CELL, RED, 32)
    for container in ('Container 1', 'Container 3'):
        assert drop([bad], desk.program.centre(desk.program.need(container)))
        desk.program.waitForKeys()
        desk.waitForIcon(32, good)
        desk.waitForPixel(5, 7, 32, RED)
    assert drop([path], desk.program.centre(desk.program.need('Container 3')))
    desk.program.answerBox(f'{path} {REFUSAL}', 'alt+y')
    desk.waitForForm(EDIT_FACE)
    assert desk.held(CONTAINER) == '3'
    desk.loadAndExit(2)
    desk.waitForIcon(16, path)
    desk.program.press('Container 1')
    desk.waitForIcon(32, good)
    desk.waitForPixel(5, 7, 32, RED)
    assert drop([path], desk.program.centre(desk.program.need('Container 1')))
    desk.program.answerBox(f'{path} {REFUSAL}', 'alt+y')
    desk.waitForForm(EDIT_FACE)
    desk.loadAndExit(3)
    desk.program.answerBox(SAVE_QUESTION, 'Escape')
    desk.waitForIcon(32, good)
    desk.waitForPixel(5, 7, 32, RED)

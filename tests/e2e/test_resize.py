"""Icons at another size: both results side by side, the choice between them, the questions before, and the saved file
as independent programs read it."""
import icons
from forms import write
from panels import PanelDesk, look

RESIZE, EXPAND, SHRINK = 'Resize current icon', 'Expand Size', 'Shrink Size'
SOFTENED, PLAIN, OPTION = 'Softened', 'Not softened', 'Opt'
NOT_SUITABLE = 'No icon in Editing Area yet or not of suitable size.'
OTHER_SIZES = 'Current icon originates from a multi-icon file which has'
SAVE_QUESTION = 'Save current icon to file?'


def shades(size):
    """A square of many colours with a transparent rim of an eighth."""
    def pixel(x, y):
        rim = size // 8
        isPainted = rim <= x < size - rim and rim <= y < size - rim
        return (5 * x, 255 - 5 * y, (x * y) % 256) if isPainted else None
    return [[pixel(x, y) for x in range(size)] for y in range(size)]


def third(picture, isSoftened):
    """The picture at a third of its size. Of nine pixels the upper right one stays; softened it has their mean."""
    def pixel(x, y):
        kept = picture[3 * y][3 * x + 2]
        nine = [picture[3 * y + i][3 * x + j] for i in range(3) for j in range(3)]
        painted = [color for color in nine if color]
        if not kept or not isSoftened:
            return kept
        return tuple((2 * sum(levels) + len(painted)) // (2 * len(painted)) for levels in zip(*painted))
    side = len(picture) // 3
    return [[pixel(x, y) for x in range(side)] for y in range(side)]


def tripled(picture):
    return [[picture[y // 3][x // 3] for x in range(3 * len(picture))] for y in range(3 * len(picture))]


def open48(desk):
    picture = shades(48)
    path = desk.openContent('a.ico', icons.fileOf([icons.entryOf(picture, 24)]), 48)
    return picture, path


def test_a_48_shrinks_to_16_and_back(session):
    desk = PanelDesk(session)
    picture, path = open48(desk)
    small = third(picture, True)
    desk.effect(RESIZE, SHRINK, 'Shrink To 16x16')
    desk.expectSample(look(small), 'the softened icon', SOFTENED)
    desk.expectSample(look(third(picture, False)), 'the plain icon', PLAIN)
    desk.expectIcon(picture, 'the icon beside its samples')
    desk.proceed(RESIZE, 'Return')
    desk.expectIcon(small, 'the small icon')
    desk.program.wait(lambda: desk.program.value('File') == 'Shrunk from 48x48', 'the former size to be shown')
    assert desk.program.value('Icon size') == '16 x 16'
    assert not desk.isPossible('Undo')
    desk.save(path)
    assert icons.readByPillow(path) == small

    desk.effect(RESIZE, EXPAND, 'Expand To 48x48')
    desk.pickEntry(OPTION, 'Without Softening')
    desk.expectSample(look(tripled(small)), 'the plain large icon', PLAIN)
    desk.proceed(RESIZE)
    desk.expectIcon(tripled(small), 'the large icon')
    desk.program.wait(lambda: desk.program.value('File') == 'Expanded from 16x16', 'the former size to be shown')


def test_close_keeps_the_icon_and_no_other_size_is_taken(session):
    desk = PanelDesk(session)
    picture, _ = open48(desk)
    desk.effect(RESIZE, SHRINK, 'Shrink To 24x24')
    desk.close(RESIZE, 'Escape')
    desk.expectIcon(picture, 'the icon as before')
    for entry in 'Expand To 24x24', 'Expand To 48x48':
        desk.program.menu('Effects', EXPAND, entry)
        desk.program.answerBox(NOT_SUITABLE)
    assert not desk.isUp(RESIZE)


def test_unsaved_work_is_asked_about(session):
    desk = PanelDesk(session)
    picture, _ = open48(desk)
    desk.program.command('F4')
    session.click(desk.program.pixelPoint(0, 0, 48))
    desk.program.wait(lambda: desk.shown(48)[0][0] != look(picture)[0][0], 'the painted pixel')
    desk.program.menu('Effects', SHRINK, 'Shrink To 32x32')
    desk.program.answerBox(SAVE_QUESTION, key='Escape')
    assert not desk.isUp(RESIZE)
    desk.program.menu('Effects', SHRINK, 'Shrink To 32x32')
    desk.program.answerBox(SAVE_QUESTION, key='alt+n')
    desk.waitForPanel(RESIZE)
    desk.close(RESIZE)


def test_an_icon_among_other_sizes_is_not_resized(session):
    desk = PanelDesk(session)
    desk.start()
    desk.openIcons(write(session, 'two.ico', icons.icons((32, 24), (16, 24))))
    desk.loadAndExit(1)
    for menu, entry in (EXPAND, 'Expand To 48x48'), (SHRINK, 'Shrink To 24x24'):
        desk.program.menu('Effects', menu, entry)
        desk.program.answerBox(OTHER_SIZES)
        assert not desk.isUp(RESIZE)

"""Text: typed, styled, turned and coloured in its panel, dragged to its place by mouse and by keys, merged, undone and
saved. The sample is what the region must be: it is read from the screen before Proceed."""
import icons
from panels import BLACK, GROUND, PanelDesk

TEXT, TEXT_MENU = 'Text', 'Text'
SIZE = 48
RED, SHADOW = (255, 0, 0), (128, 128, 128)
TYPED_RED = '#ff0000'
COLOR, ANGLE = 'Click to select text color', 'Text angle'
NO_TEXT = 'No text entered yet'
REFUSED = 'Cannot use this color for text of Shadowed style,'
MARK = icons.COLORS_16[12]  # the colour of the icon's square


def openSquare(desk, name='a.ico'):
    """An icon with a painted square in its middle."""
    picture = [[MARK if 20 <= x < 28 and 20 <= y < 28 else None for x in range(SIZE)] for y in range(SIZE)]
    desk.openContent(name, icons.fileOf([icons.entryOf(picture, 24)]), SIZE)
    return picture


def openPanel(desk):
    desk.effect(TEXT, TEXT_MENU)
    desk.program.wait(lambda: desk.isFocusedOn('Text', 'text'), 'the focus in the text')


def write(desk, text):
    desk.program.typeInto('Text', text, role='text')


def pickColor(desk, digits):
    desk.program.press(COLOR)
    desk.program.waitForDialog()
    desk.program.keys('alt+h', 'ctrl+a')
    desk.session.type(digits)
    desk.session.keys('Return')
    desk.program.waitForNoDialog()


def textOf(desk, color=BLACK, shadow=False):
    """The text's pixels by their positions, from the sample, which must show the text in these colours only."""
    colors = {color, SHADOW} if shadow else {color}
    desk.program.wait(lambda: color in {pixel for row in desk.sample('Sample', SIZE) for pixel in row}, 'the text')
    sample = desk.sample('Sample', SIZE)
    seen = {pixel for row in sample for pixel in row}
    assert seen - {GROUND, MARK} == colors, seen
    return {(x, y): pixel for y, row in enumerate(sample) for x, pixel in enumerate(row) if pixel in colors}


def withText(picture, text, dx=0, dy=0):
    result = [list(row) for row in picture]
    for (x, y), pixel in text.items():
        result[y + dy][x + dx] = pixel
    return result


def dragText(desk, text, dx, dy):
    x, y = min(text)
    points = [desk.program.pixelPoint(x + dx * part // 2, y + dy * part // 2, SIZE) for part in (0, 1, 2)]
    desk.session.drag(points)


def saved(desk, picture):
    path = desk.session.path('a.ico')
    desk.save(path)
    for reader, read in icons.READERS.items():
        assert read(path) == picture, f'{reader} reads other pixels'


def test_a_text_is_dragged_by_mouse_merged_undone_and_saved(session):
    desk = PanelDesk(session)
    picture = openSquare(desk)
    openPanel(desk)
    desk.program.press('Proceed')
    desk.program.answerBox(NO_TEXT)
    assert desk.isUp(TEXT)
    desk.program.goTo('Text', role='text')
    write(desk, 'To')
    desk.pickEntry('Size', 'Tiny')
    pickColor(desk, TYPED_RED)
    text = textOf(desk, RED)
    desk.expectIcon(picture, 'the icon beside its sample')
    desk.proceed(TEXT)
    desk.expectIcon(withText(picture, text), 'the text at the top left')

    dragText(desk, text, 12, 20)
    moved = withText(picture, text, 12, 20)
    desk.expectIcon(moved, 'the text in its place')
    desk.program.press('Clear all tools')
    desk.expectIcon(moved, 'the merged text')
    desk.program.command('ctrl+z')
    desk.expectIcon(picture, 'the icon without the text')
    desk.program.command('ctrl+r')
    desk.expectIcon(moved, 'the text again')
    saved(desk, moved)


def test_a_text_is_written_and_dragged_by_keys(session):
    desk = PanelDesk(session)
    picture = openSquare(desk)
    desk.program.command('ctrl+F2')
    desk.waitForPanel(TEXT)
    desk.program.wait(lambda: desk.isFocusedOn('Text', 'text'), 'the focus in the text')
    write(desk, 'A')
    desk.program.goTo('Size', role='combo box')
    desk.program.command('Down')
    desk.program.goTo('Bold', role='check box')
    desk.program.command('space')
    desk.program.goTo('Style', role='combo box')
    desk.program.command('End')
    text = textOf(desk, shadow=True)
    straight = desk.sample('Sample', SIZE)
    desk.program.goTo(ANGLE, role='slider')
    desk.program.command('Page_Up', 'Page_Up')
    desk.program.wait(lambda: desk.sample('Sample', SIZE) != straight, 'the turned text')
    desk.program.command('Page_Down', 'Page_Down')
    desk.expect(lambda: desk.sample('Sample', SIZE), straight, 'the straight text')
    desk.proceed(TEXT, 'Return')
    desk.expectIcon(withText(picture, text), 'the text at the top left')

    desk.program.goTo('Editing Area')
    desk.program.command('space', *['Right'] * 5, *['Down'] * 3, 'space')
    desk.expectIcon(withText(picture, text, 5, 3), 'the text in its place')
    desk.program.command('Escape')
    desk.program.command('ctrl+z')
    desk.expectIcon(picture, 'the icon without the text')
    desk.program.command('ctrl+r')
    saved(desk, withText(picture, text, 5, 3))


def test_a_color_of_the_style_is_refused_and_close_discards_the_text(session):
    desk = PanelDesk(session)
    picture = openSquare(desk)
    openPanel(desk)
    write(desk, 'x')
    desk.pickEntry('Style', 'Shadowed')
    before = desk.sample('Sample', SIZE)
    desk.program.press(COLOR)
    desk.program.waitForDialog()
    desk.program.keys('alt+h', 'ctrl+a')
    session.type('#808080')
    session.keys('Return')
    desk.program.answerBox(REFUSED)
    assert desk.sample('Sample', SIZE) == before
    desk.close(TEXT, 'Escape')
    desk.expectIcon(picture, 'the icon without a text')

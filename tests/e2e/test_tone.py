"""Tone, sharpening and antialiasing: previewed in their panels, cancelled, refused, applied and undone. The expected
results are computed here, pixel by pixel."""
import icons
import readers
from forms import read
from panels import BLACK, SHADES, PanelDesk

BRIGHTNESS, SHARPEN, ANTIALIAS = 'Adjust brightness of colors', 'Sharpen/soften image', 'Antialiasing'
SWAP, THEME = 'Swap elements of pixels', 'Set color theme'
SWAP_LIST = 'Current order is R.G.B., change it to'
OUTSIDE = -1, 0, 0


def patches(size):
    """Areas of a few colours with single pixels between them and transparent gaps."""
    def pixel(x, y):
        return icons.COLORS_16[(x // 5 + y // 3 + (x * y % 11 == 3)) % 16] if (x // 7 + y // 9) % 4 else None
    return [[pixel(x, y) for x in range(size)] for y in range(size)]


def at(picture, x, y):
    size = len(picture)
    return (picture[y][x] or BLACK) if 0 <= x < size and 0 <= y < size else OUTSIDE


def made(picture, rule):
    """The picture with rule(x, y), a value for each channel, for each painted pixel."""
    def whole(value):
        return min(max(round(value), 0), 255)
    return [[pixel and tuple(whole(value) for value in rule(x, y)) for x, pixel in enumerate(row)]
            for y, row in enumerate(picture)]


def inverted(picture):
    return made(picture, lambda x, y: [255 - channel for channel in at(picture, x, y)])


def grey(picture):
    def rule(x, y):
        red, green, blue = at(picture, x, y)
        return [0.3 * red + 0.59 * green + 0.11 * blue] * 3
    return made(picture, rule)


def cast(picture, *levels):
    return made(picture, lambda x, y: [abs(level + far - own) for level, far, own
                                       in zip(levels, at(picture, x + 1, y + 1), at(picture, x, y))])


def softened(picture):
    def rule(x, y):
        if min(x, y, len(picture) - 1 - x, len(picture) - 1 - y) < 1:
            return at(picture, x, y)
        five = [at(picture, x + dx, y + dy) for dx, dy in ((0, 0), (1, 0), (-1, 0), (0, 1), (0, -1))]
        return [sum(channel) / 5 for channel in zip(*five)]
    return made(picture, rule)


def antialiased(picture):
    def mean(first, second):
        return [round((a + b) / 2) for a, b in zip(first, second)]

    def rule(x, y):
        return mean(mean(at(picture, x, y), at(picture, x, y + 1)), mean(at(picture, x + 1, y), at(picture, x + 1, y + 1)))
    return made(picture, rule)


def scaled(picture, red, green, blue):
    return made(picture, lambda x, y: [min(channel * (100 + percent) // 100, 255) for channel, percent
                                       in zip(at(picture, x, y), (red, green, blue))])


def openPatches(session, size):
    desk, picture = PanelDesk(session), patches(size)
    path = desk.openContent('a.ico', icons.icon16(picture), size)
    desk.expectIcon(picture, 'the opened icon')
    return desk, path, picture


def undoRedoAndUndo(desk, before, after, what):
    desk.undoAndRedo(before, after, what)
    desk.program.command('ctrl+z')
    desk.expectIcon(before, f'the icon without {what}')


def test_effects_without_settings_are_looked_at_given_up_applied_and_undone(session):
    desk, path, picture = openPatches(session, 32)
    for title, entry, effect in ((SHADES, 'Invert', inverted), (SHADES, 'Grayscale', grey),
                                 (ANTIALIAS, 'Antialias', antialiased)):
        desk.effect(title, entry)
        desk.expectSample(effect(picture), entry)
        desk.close(title, 'Escape')
        desk.expectIcon(picture, f'the icon after {entry} was given up')
        desk.effect(title, entry)
        desk.proceed(title, 'Return')
        undoRedoAndUndo(desk, picture, effect(picture), entry)
    desk.effect(SHADES, 'Invert')
    desk.proceed(SHADES)
    desk.save(path)
    readers.assertIcons(path, [(inverted(picture), 8)])


def test_brightness_is_changed_step_by_step_and_restored(session):
    desk, path, picture = openPatches(session, 24)
    before = read(path)
    desk.effect(BRIGHTNESS, 'Adjust Brightness')
    desk.program.press('Proceed')
    desk.program.answerBox('No change actually made')
    desk.close(BRIGHTNESS)
    desk.effect(BRIGHTNESS, 'Adjust Brightness')
    desk.program.command('Up')  # in the list of red, which has the focus
    once = scaled(picture, -5, 0, 0)
    desk.expectSample(once, 'less red')
    desk.program.command('Up')
    twice = scaled(once, -5, 0, 0)
    desk.expectSample(twice, 'still less red')
    desk.program.press('Restore')
    desk.expectSample(picture, 'the restored picture')
    desk.program.press('Proceed')
    desk.program.answerBox('No change actually made')
    desk.close(BRIGHTNESS)
    desk.expectIcon(picture, 'the icon after brightness was given up')
    desk.effect(BRIGHTNESS, 'Adjust Brightness')
    desk.program.command('Up')
    desk.expectSample(once, 'less red again')
    desk.proceed(BRIGHTNESS)
    undoRedoAndUndo(desk, picture, once, 'brightness')
    assert read(path) == before


def test_sharpening_and_swapping_need_a_choice(session):
    desk, _, picture = openPatches(session, 16)
    desk.effect(SHARPEN, 'Sharpen')
    desk.program.press('Proceed')
    desk.program.answerBox('No change actually made')
    desk.pickEntry('Sharpen or soften', 'Soften')
    desk.expectSample(softened(picture), 'a soft picture')
    desk.proceed(SHARPEN)
    undoRedoAndUndo(desk, picture, softened(picture), 'softening')

    swapped = [[pixel and pixel[::-1] for pixel in row] for row in picture]
    desk.effect(SWAP, 'Swap Elements')
    desk.program.press('Proceed')
    desk.program.answerBox('No swap selected yet.')
    desk.pickEntry(SWAP_LIST, 'B.G.R.')
    desk.expectSample(swapped, 'swapped channels')
    desk.proceed(SWAP)
    undoRedoAndUndo(desk, picture, swapped, 'a swap')


def test_cast_moves_its_levels_by_list_and_slider(session):
    desk, _, picture = openPatches(session, 32)
    desk.effect(SHADES, 'Cast')
    desk.expectSample(cast(picture, 127, 127, 127), 'cast')
    desk.program.command('End')  # in the list of red
    desk.expectSample(cast(picture, 255, 127, 127), 'a red cast')
    for _ in range(3):
        desk.program.command('Tab')
    desk.program.command('Left')  # on the slider, from 170
    desk.expectSample(cast(picture, 254, 126, 126), 'a darker cast')
    desk.program.press('Restore')
    desk.expectSample(cast(picture, 127, 127, 127), 'the restored cast')
    desk.proceed(SHADES, 'Return')
    undoRedoAndUndo(desk, picture, cast(picture, 127, 127, 127), 'cast')


def test_a_theme_without_a_color_is_refused(session):
    desk, _, picture = openPatches(session, 16)
    desk.effect(THEME, 'Set Color Theme')
    desk.expectSample(picture, 'a theme without a color')
    desk.program.press('Proceed')
    desk.program.answerBox('No selection of color yet')
    assert desk.isUp(THEME)
    desk.close(THEME)
    desk.expectIcon(picture, 'the icon without a theme')

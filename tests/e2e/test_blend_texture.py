"""Blend and texture: previewed, given up, refused, applied, undone and saved. The expected results are computed here,
pixel by pixel."""
import icons
import readers
from forms import write
from panels import PanelDesk

BLEND, BLEND_MENU, REF, PERCENT = ('Blend in other icon into current one', 'Blend In Another Icon',
                                   'Blend in icon from container ref', 'Translucency %')
TEXTURE, TEXTURE_MENU = 'Texturize Painted Area', 'Texturize Painted Surface'
PATTERN, STYLE, DEPTH, OPEN = 'Pattern in use', 'Style', 'Depth', 'Open custom pattern bitmap file'
NO_CHOICE = REF  # a list without a text reports its own name
NO_PARTNER = 'No icon of same size from Icons Panel to blend in.'
PATTERN_SIDE = 48


def shades(size):
    """Shades of all colours with transparent corners."""
    def pixel(x, y):
        return (40 + x * 3, 200 - y * 3, (x * 5 + y * 7) % 200) if (x + y) % 9 and min(x, y) > 2 else None
    return [[pixel(x, y) for x in range(size)] for y in range(size)]


def stripes(size):
    return [[(250 - x * 4, y * 4, 30) if (x // 4) % 2 else None for x in range(size)] for y in range(size)]


def blended(own, other, percent):
    def pixel(a, b):
        if not (a and b):
            return a or b
        return tuple(round(x - (x - y) * (percent / 100)) for x, y in zip(a, b))
    return [[pixel(a, b) for a, b in zip(*rows)] for rows in zip(own, other)]


def patternPixel(x, y):
    return (x * 5 % 256, (x * x + y * 3) % 256, y * 5 % 256)


def patternFile(width, height):
    """A bitmap of 24 bits."""
    rows = b''.join(icons.padded(b''.join(bytes(reversed(patternPixel(x, y))) for x in range(width)))
                    for y in reversed(range(height)))
    header = icons.struct.pack('<IiiHHIIiiII', 40, width, height, 1, 24, 0, len(rows), 0, 0, 0, 0)
    return b'BM' + icons.struct.pack('<III', 54 + len(rows), 0, 54) + header + rows


def textured(picture, depth, inverted):
    """The picture with patternPixel pressed in."""
    size = len(picture)

    def levelOf(x, y):
        far = patternPixel(x + 1 if x < size - 1 else x - 1, y + 1 if y < size - 1 else y - 1)
        red, green, blue = [min(abs(depth * ((b - a) if inverted else (a - b)) + 128), 255)
                            for a, b in zip(patternPixel(x, y), far)]
        return round(0.1 * blue + 0.2 * green + 0.7 * red)

    def pixel(x, y):
        level = levelOf(x, y)
        return tuple(min(max(round(level / 128 * channel + level - 128), 0), 255) for channel in picture[y][x])
    return [[own and pixel(x, y) for x, own in enumerate(row)] for y, row in enumerate(picture)]


def openTrueColor(desk, name, picture):
    return desk.openContent(name, icons.fileOf([icons.entryOf(picture, 24)]), len(picture))


def test_another_icon_is_blended_in_by_mouse_and_keys_undone_and_saved(session):
    desk, own, other = PanelDesk(session), shades(32), stripes(32)
    path = openTrueColor(desk, 'own.ico', own)
    desk.program.menu('Effects', BLEND_MENU)
    desk.program.answerBox(NO_PARTNER)
    assert not desk.isUp(BLEND)
    desk.program.press('Container 2')
    openTrueColor(desk, 'other.ico', other)
    desk.program.press('Container 1')
    desk.waitForIcon(32, path)

    desk.effect(BLEND, BLEND_MENU)
    assert desk.program.find('Base icon ref:  1')
    assert desk.held(REF) == NO_CHOICE and desk.held(PERCENT) == '40'
    desk.expectSample(own, 'no blend')
    desk.program.press('Proceed')
    desk.program.answerBox('No blend in yet')
    desk.pickEntry(REF, '2')
    desk.expectSample(blended(own, other, 40), 'a blend')
    desk.pickEntry(PERCENT, '0')
    desk.expectSample(blended(own, other, 0), 'a blend at 0 %')
    desk.close(BLEND, 'Escape')
    desk.expectIcon(own, 'the icon after blending was given up')

    desk.effect(BLEND, BLEND_MENU)
    assert desk.held(REF) == NO_CHOICE
    desk.program.command('Down', 'Tab', 'End')
    desk.expectSample(blended(own, other, 90), 'a blend at 90 %')
    desk.proceed(BLEND, 'Return')
    desk.undoAndRedo(own, blended(own, other, 90), 'blending')
    desk.save(path)
    readers.assertIcons(path, [(blended(own, other, 90), 24)])


def copyTo(desk, container):
    desk.program.menu('Edit', 'Copy To Another Container', f'To Container {container}')
    desk.program.answerBox(f'Copy current icon to Container {container}.  Proceed?', 'alt+y')


def test_the_list_of_containers_follows_them(session):
    desk, own = PanelDesk(session), shades(16)
    openTrueColor(desk, 'own.ico', own)
    copyTo(desk, 3)
    desk.effect(BLEND, BLEND_MENU)
    desk.choose(REF, 1)
    assert desk.held(REF) == '3'
    copyTo(desk, 5)
    assert desk.isUp(BLEND) and desk.held(REF) == '3'
    desk.choose(REF, 2)
    desk.program.wait(lambda: desk.held(REF) == '5', 'the new entry to be chosen')
    # A file that is opened under the panel is larger than the icons in the containers.
    openTrueColor(desk, 'larger.ico', shades(24))
    desk.program.wait(lambda: desk.held(REF) == NO_CHOICE, 'the choice to be given up')
    desk.program.press('Proceed')
    desk.program.answerBox('No blend in yet')
    desk.close(BLEND)
    desk.expectIcon(shades(24), 'the opened icon')


def test_a_custom_pattern_is_opened_pressed_in_undone_and_saved(session):
    desk, own = PanelDesk(session), shades(48)
    path = openTrueColor(desk, 'own.ico', own)
    narrow = write(session, 'narrow.bmp', patternFile(47, PATTERN_SIDE))
    broken = write(session, 'broken.bmp', patternFile(PATTERN_SIDE, PATTERN_SIDE)[:-9])
    pattern = write(session, 'pattern.bmp', patternFile(PATTERN_SIDE, PATTERN_SIDE))
    desk.effect(TEXTURE, TEXTURE_MENU)
    stored = desk.sample('Pattern', PATTERN_SIDE)
    for bad, text in ((narrow, 'Incoming image is 47 x 48, not of the size of 48x48.'),
                      (broken, 'Failed to load the image file')):
        desk.program.press(OPEN)
        desk.program.chooseFile(bad)
        desk.program.answerBox(text)
        assert desk.held(PATTERN) == 'Pattern 1'
    desk.program.press(OPEN)
    desk.program.giveUpFile()
    assert desk.sample('Pattern', PATTERN_SIDE) == stored

    desk.program.goTo(OPEN, role='push button')
    desk.program.command('space')
    desk.program.chooseFile(pattern)
    desk.program.wait(lambda: desk.held(PATTERN) == 'Custom', 'the custom pattern to be in use')
    desk.expectSample([[patternPixel(x, y) for x in range(48)] for y in range(48)], 'the pattern', 'Pattern')
    desk.expectSample(textured(own, 0.5, False), 'a texture')
    desk.pickEntry(STYLE, 'Style 2')
    desk.expectSample(textured(own, 0.5, True), 'a texture in the other style')
    desk.pickEntry(PATTERN, 'Pattern 1')
    desk.expect(lambda: desk.sample('Pattern', PATTERN_SIDE), stored, 'the stored pattern again')
    desk.close(TEXTURE)
    desk.expectIcon(own, 'the icon after the texture was given up')

    desk.effect(TEXTURE, TEXTURE_MENU)
    desk.program.command('End')
    desk.program.wait(lambda: desk.held(PATTERN) == 'Custom', 'the pattern to be there again')
    desk.choose(DEPTH, 8)
    desk.expectSample(textured(own, 0.9, True), 'a deep texture')
    desk.proceed(TEXTURE)
    desk.undoAndRedo(own, textured(own, 0.9, True), 'a texture')
    desk.save(path)
    readers.assertIcons(path, [(textured(own, 0.9, True), 24)])


def test_an_icon_without_a_painted_pixel_takes_no_texture(session):
    desk = PanelDesk(session)
    openTrueColor(desk, 'empty.ico', [[None] * 16 for _ in range(16)])
    desk.program.menu('Effects', TEXTURE_MENU)
    desk.program.answerBox('Current icon is blank, i.e. no painted area yet.')
    assert not desk.isUp(TEXTURE)

"""Icons reduced to 256, 16 and 2 colours, and saved as bitmaps: what the panel shows, what the icon is afterwards, and
what independent programs read from the files."""
import collections
import os
import re
import struct
import subprocess
import tempfile

import icons
import readers
from forms import read
from panels import BLACK, REDUCE, WHITE, PanelDesk, colorsOf, imageOf, maskOf

SIZE = 32
MENU = 'Reduce Colors Used'
CONFINE_TO, THRESHOLD = 'Confine to', 'Threshold: (If averaged color value below threshold, black)'
FIRST_THRESHOLD, LOWEST_THRESHOLD, HIGHEST_THRESHOLD = 128, 1, 354
HAMMERING = (['Page_Down'] * 9 + ['End'] + ['Page_Up'] * 7 + ['Home', 'End', 'Up', 'Up', 'Down'] * 5
             + ['Page_Down', 'Home'] * 4)
LEVEL_ENDS = (64, 0), (159, 128), (223, 192), (255, 255)  # the level of a channel up to that value
# The shares of an error, in parts of 32: places to the right, rows further, share.
WEIGHTS = (1, 0, 8), (2, 0, 4), (-2, 1, 2), (-1, 1, 4), (0, 1, 8), (1, 1, 4), (2, 1, 2)
# The level of sixteen from which a pixel is white, by column and by row from the bottom.
ORDERED = (1, 9, 3, 11), (13, 5, 15, 7), (4, 12, 2, 10), (16, 8, 14, 6)
# Less than the result without dithering.
OPTIMAL_ERROR, DITHERED_ERROR = 2, 12
PALETTE_STEP = 64  # the largest one between entries of the system palette
Run = collections.namedtuple('Run', 'menu caption methods colors bits')
RUNS = [Run('Confine Colors To 256', 'Confine Colors To 256-Color Palette', ('Optimal', 'System'), 256, 8),
        Run('Confine Colors To 16', 'Confine Colors To 16-Color Palette', ('Optimaized', 'Nearest', 'Standard VGA'),
            16, 4),
        Run('Confine To Mono', 'Confine Colors To Mono', ('Select Cutoff', 'Weighted', 'Ordered'), 2, 1)]
TO_256, TO_16, TO_MONO = RUNS
QUESTION = ('The header entry of current icon is 24-BPP True Color, but the actual image is of {colors}-color. '
            'Proceed to change header entry?')
CHANGED = 'Header entry has been changed to {bits}-BPP {colors}-Color. You may proceed to save it to file.'
FEW_COLORS = 'Current image is of {colors}-color depth.'
BACKGROUND_QUESTION = 'Background color used will be the currently selected color. OK?'
COLORS_IN_CHART = {'white': ((0, 0), WHITE), 'teal': ((6, 1), (0, 128, 128)), 'lime': ((5, 0), (0, 255, 0))}


# What the methods make -----------------------------------------------------------------------------------------------

def shades(size):
    """Twice as many colours as a palette of 256 holds, each on two pixels, or fewer where it is transparent."""
    def pixel(x, y):
        isPainted = (x * 7 + y * 3) % 11 != 0 and x + y > 2
        return (x * 8, y // 2 * 16, (x * 5 + y // 2 * 40) % 256) if isPainted else None
    return [[pixel(x, y) for x in range(size)] for y in range(size)]


def painted(image, picture):
    """The image where the picture is painted, transparent elsewhere."""
    return [[color if pixel else None for color, pixel in zip(row, like)] for row, like in zip(image, picture)]


def cutOff(picture, threshold):
    """Black where the mean of the channels is below the threshold, transparent elsewhere."""
    return [[BLACK if pixel and sum(pixel) / 3 < threshold else None for pixel in row] for row in picture]


def nearest(picture):
    return [[pixel and snapped(pixel) for pixel in row] for row in picture]


def snapped(color):
    """One of the sixteen colours, by the level of each channel."""
    r, g, b = (next(level for last, level in LEVEL_ENDS if value <= last) for value in color)
    if (r, g, b) in icons.COLORS_16:
        return r, g, b
    if r == 255:
        return r, 255 * (g > 0), 255 * (b > 0)
    if r == 192:
        if g == 0:
            return 128, 0, 128 * (b > 0)
        return (192, 192, 192) if b > 0 else (128, 128, 0)
    if r == 128:
        return r, min(g, 128), 128 * (b > 0)
    if g == 255 or g == 192 and b >= 192:
        return 0, 255, 255 * (b > 0)
    return 0, min(g, 128), min(b, 128)


def quotient(number, divisor):
    """Truncated towards zero."""
    return abs(number) // divisor * (1 if number >= 0 else -1)


def weighted(picture):
    """Black and white with error diffusion, row by row from the bottom."""
    rows = [[sum(pixel) // 3 for pixel in row] for row in reversed(imageOf(picture))]
    size = len(rows)
    threshold = sum(map(sum, rows)) // size ** 2
    errors = [[0] * size for _ in range(size + 1)]
    for y, row in enumerate(rows):
        for x in range(size):
            value = min(255, max(0, row[x] + quotient(errors[y][x] * 10, 15)))
            row[x] = 0 if value < threshold else 255
            for right, further, share in WEIGHTS:
                if 0 <= x + right < size:
                    errors[y + further][x + right] += quotient((value - row[x]) * share, 32)
    return painted([[(value,) * 3 for value in row] for row in reversed(rows)], picture)


def ordered(picture):
    """Black and white with a fixed pattern."""
    last = len(picture) - 1
    def pixel(x, y, color):
        return WHITE if sum(color) // 3 // 16 + 1 >= ORDERED[x % 4][(last - y) % 4] else BLACK
    return [[color and pixel(x, y, color) for x, color in enumerate(row)] for y, row in enumerate(picture)]


def pairs(picture, other):
    return [(pixel, like) for row, likes in zip(picture, other) for pixel, like in zip(row, likes) if pixel]


def distance(color, other):
    return sum((a - b) ** 2 for a, b in zip(color, other))


def isNearestOfSixteen(picture, result):
    """True if each pixel has become the nearest of the sixteen colours."""
    least = lambda pixel: min(distance(pixel, color) for color in icons.COLORS_16)
    return all(like in icons.COLORS_16 and distance(pixel, like) == least(pixel)
               for pixel, like in pairs(picture, result))


def isMatched(picture, result, farthest):
    """True if equal pixels are still equal, and no channel has changed by more than the limit."""
    return (len(set(pairs(picture, result))) == len(colorsOf(picture) - {None})
            and max(abs(a - b) for pixel, like in pairs(picture, result) for a, b in zip(pixel, like)) <= farthest)


def meanError(picture, other):
    """The difference between the means of blocks of 4 x 4 pixels, per channel: a dither keeps it small."""
    def means(rows):
        return [sum(rows[y + dy][x + dx][channel] for dy in range(4) for dx in range(4)) / 16
                for y in range(0, len(rows), 4) for x in range(0, len(rows), 4) for channel in range(3)]
    differences = [abs(a - b) for a, b in zip(means(imageOf(picture)), means(imageOf(other)))]
    return sum(differences) / len(differences)


# At work -------------------------------------------------------------------------------------------------------------

def openShades(desk, name='shades.ico'):
    picture = shades(SIZE)
    path = desk.openContent(name, icons.fileOf([icons.entryOf(picture, 24)]), SIZE)
    desk.expectIcon(picture, 'the opened icon')
    return path, picture


def bringUp(desk, run):
    desk.effect(REDUCE, MENU, run.menu)
    desk.program.need(run.caption, role='label')
    assert desk.held(CONFINE_TO) == run.methods[0], 'each run begins with its first method'


def expectSamples(desk, picture, what):
    desk.expect(lambda: desk.sample('Image', SIZE), imageOf(picture), what + ', image')
    desk.expect(lambda: desk.sample('Mask', SIZE), maskOf(picture), what + ', mask')


def sampleThat(desk, picture, holds, what):
    """The picture of the samples, once the condition holds for it."""
    def seen():
        image, mask = desk.sample('Image', SIZE), desk.sample('Mask', SIZE)
        result = painted(image, picture)
        return result if image == imageOf(result) and mask == maskOf(picture) and holds(result) else None
    return desk.program.wait(seen, f'the samples of {what}')


def giveUp(desk, picture):
    desk.expectIcon(picture, 'the icon beside its samples')
    desk.close(REDUCE)
    desk.expectIcon(picture, 'the icon after the reduction was given up')
    assert not desk.isPossible('Undo')


def expectReducedForGood(desk, result):
    desk.expectIcon(result, 'the reduced icon')
    assert not desk.isPossible('Undo')
    desk.program.command('ctrl+z')
    desk.program.press('Container 1')  # the action of the key is finished by then
    desk.expectIcon(result, 'the reduced icon after Undo')


def saveAndCorrect(desk, run, path, result):
    """First saved as true colour, then with the header entry corrected."""
    assert len(colorsOf(imageOf(result))) <= run.colors
    desk.save(path)
    readers.assertIcons(path, [(result, 24)])
    question = QUESTION.format(colors=run.colors)
    desk.program.menu('Effects', MENU, run.menu)
    desk.program.answerBox(question, 'alt+n')
    desk.program.menu('Effects', MENU, run.menu)
    desk.program.answerBox(question, 'alt+y')
    desk.program.answerBox(CHANGED.format(bits=run.bits, colors=run.colors))
    desk.expectIcon(result, 'the icon after its header entry was changed')
    desk.save(path)
    readers.assertIcons(path, [(result, run.bits)])
    desk.program.menu('Effects', MENU, run.menu)
    desk.program.answerBox(FEW_COLORS.format(colors=run.colors))
    assert not desk.isUp(REDUCE)


# Each run ------------------------------------------------------------------------------------------------------------

def test_256_colors(session):
    desk = PanelDesk(session)
    path, picture = openShades(desk)
    fits = lambda result: len(colorsOf(imageOf(result))) <= 256
    system = lambda result: fits(result) and isMatched(picture, result, PALETTE_STEP)
    optimal = lambda result: fits(result) and meanError(picture, result) < OPTIMAL_ERROR and not system(result)
    bringUp(desk, TO_256)
    sampleThat(desk, picture, optimal, 'Optimal')
    desk.pickEntry(CONFINE_TO, 'System')
    sampleThat(desk, picture, system, 'System')
    desk.pickEntry(CONFINE_TO, 'Optimal')
    result = sampleThat(desk, picture, optimal, 'Optimal again')
    giveUp(desk, picture)
    bringUp(desk, TO_256)
    desk.proceed(REDUCE, 'Return')
    expectReducedForGood(desk, result)
    saveAndCorrect(desk, TO_256, path, result)


def test_16_colors(session):
    desk = PanelDesk(session)
    path, picture = openShades(desk)
    dithered = lambda result: (colorsOf(imageOf(result)) <= set(icons.COLORS_16)
                               and meanError(picture, result) < DITHERED_ERROR)
    bringUp(desk, TO_16)
    sampleThat(desk, picture, dithered, 'Optimaized')
    desk.pickEntry(CONFINE_TO, 'Standard VGA')
    sampleThat(desk, picture, lambda result: isNearestOfSixteen(picture, result), 'Standard VGA')
    desk.pickEntry(CONFINE_TO, 'Nearest')
    expectSamples(desk, nearest(picture), 'Nearest')
    giveUp(desk, picture)
    bringUp(desk, TO_16)
    desk.pickEntry(CONFINE_TO, 'Nearest')
    desk.proceed(REDUCE)
    expectReducedForGood(desk, nearest(picture))
    saveAndCorrect(desk, TO_16, path, nearest(picture))


def test_black_and_white(session):
    desk = PanelDesk(session)
    path, picture = openShades(desk)
    bringUp(desk, TO_MONO)
    assert desk.held(THRESHOLD) == str(FIRST_THRESHOLD)
    expectSamples(desk, cutOff(picture, FIRST_THRESHOLD), 'Select Cutoff')
    desk.pickEntry(THRESHOLD, '131')
    expectSamples(desk, cutOff(picture, 131), 'Select Cutoff at 131')
    desk.pickEntry(CONFINE_TO, 'Weighted')
    expectSamples(desk, weighted(picture), 'Weighted')
    assert not desk.program.find(THRESHOLD, role='combo box')
    desk.pickEntry(CONFINE_TO, 'Ordered')
    expectSamples(desk, ordered(picture), 'Ordered')
    assert not desk.program.find(THRESHOLD, role='combo box')
    desk.pickEntry(CONFINE_TO, 'Select Cutoff')
    expectSamples(desk, cutOff(picture, 131), 'the threshold of before')
    giveUp(desk, picture)
    bringUp(desk, TO_MONO)
    desk.pickEntry(CONFINE_TO, 'Weighted')
    desk.proceed(REDUCE)
    expectReducedForGood(desk, weighted(picture))
    saveAndCorrect(desk, TO_MONO, path, weighted(picture))


def test_icons_of_few_colors_are_not_reduced(session):
    desk = PanelDesk(session)
    for bits, colors, runs in ((1, 2, RUNS), (4, 16, (TO_256,))):
        desk.openContent(f'{colors}.ico', icons.icons((SIZE, bits)), SIZE)
        desk.expectIcon(icons.motif(SIZE, bits), 'the opened icon')
        for run in runs:
            desk.program.menu('Effects', MENU, run.menu)
            desk.program.answerBox(FEW_COLORS.format(colors=colors))
            assert not desk.isUp(REDUCE)
        desk.expectIcon(icons.motif(SIZE, bits), 'the icon that is not reduced')


def test_the_keys_of_the_threshold_list_and_proceed_at_once(session):
    desk = PanelDesk(session)
    path, picture = openShades(desk)
    desk.program.menuByKeys('alt+c', 'l', 'm')
    desk.waitForPanel(REDUCE)
    assert desk.isFocusedOn(CONFINE_TO, 'combo box'), 'the list of methods does not have the focus'
    desk.program.command('Tab')
    desk.program.wait(lambda: desk.isFocusedOn(THRESHOLD, 'combo box'), 'Tab to come to the thresholds')
    desk.program.command('End')
    expectSamples(desk, cutOff(picture, HIGHEST_THRESHOLD), 'the highest threshold')
    desk.program.command('Home')
    expectSamples(desk, cutOff(picture, LOWEST_THRESHOLD), 'the lowest threshold')
    desk.tabTo('Proceed', 'Close')
    desk.close(REDUCE, 'space')
    desk.expectIcon(picture, 'the icon after the reduction was given up')

    desk.program.menuByKeys('alt+c', 'l', 'm')
    desk.waitForPanel(REDUCE)
    desk.program.command('alt+d')
    desk.program.wait(lambda: desk.isFocusedOn(THRESHOLD, 'combo box'), 'the thresholds by their access key')
    desk.proceed(REDUCE, *HAMMERING, 'Home', *['Down'] * 89, 'Return')
    wanted = cutOff(picture, LOWEST_THRESHOLD + 89)
    expectReducedForGood(desk, wanted)
    desk.save(path)
    readers.assertIcons(path, [(wanted, 24)])


def test_clicks_in_quick_succession_on_lists_and_close(session):
    desk = PanelDesk(session)
    _, picture = openShades(desk)
    bringUp(desk, TO_16)
    methods = desk.program.centre(desk.program.need(CONFINE_TO, role='combo box'))
    close = desk.program.centre(desk.program.need('Close'))
    desk.openList(CONFINE_TO)
    entries = [desk.entryPoint(entry) for entry in TO_16.methods]
    session.keys('Escape')
    for run in (TO_MONO, TO_16, TO_256):
        desk.clickAtOnce(methods, entries[1], methods, entries[0], close, methods, entries[1], close, close)
        desk.effect(REDUCE, MENU, run.menu)
    desk.close(REDUCE)
    desk.expectIcon(picture, 'the icon after all the clicks')
    assert not desk.isPossible('Undo')


# Bitmaps -------------------------------------------------------------------------------------------------------------

def bitmapByImageMagick(path):
    """It warns about the length in the header of files with a palette, and continues; its opacity is useless."""
    with tempfile.TemporaryDirectory(prefix='glimmerpane.') as folder:
        picture = os.path.join(folder, 'picture.png')
        done = subprocess.run(['/usr/bin/convert', 'bmp:' + path, 'png24:' + picture], capture_output=True, text=True)
        faults = [line for line in done.stderr.splitlines() if not re.search('length and filesize do not match', line)]
        assert not faults, faults
        return readers.open32(picture)


def bitsOf(path):
    return struct.unpack_from('<H', read(path), 28)[0]


def saveAsBitmap(desk, name):
    path = desk.session.path(name)
    desk.program.menu('File', 'Save As Bitmap')
    desk.program.answerBox(BACKGROUND_QUESTION, 'alt+y')
    desk.program.answerFileDialog(path)
    desk.program.wait(lambda: os.path.isfile(path), 'the bitmap')
    return path


def test_bitmaps_of_each_depth_are_read_alike(session):
    desk = PanelDesk(session)
    for bits, color in ((1, 'white'), (4, 'teal'), (8, 'lime'), (24, 'lime')):
        picture = icons.motif(SIZE, bits)
        icon = desk.openContent(f'{bits} {color}.ico', icons.icons((SIZE, bits)), SIZE)
        cell, background = COLORS_IN_CHART[color]
        desk.takeColor(cell, background)
        wanted = readers.quads([[pixel or background for pixel in row] for row in picture])
        path = saveAsBitmap(desk, f'{bits} {color}.bmp')
        assert bitsOf(path) == bits
        pillow = readers.open32(path)
        readers.assertSame([bitmapByImageMagick(path)], [pillow], 'ImageMagick', path)
        if bits == 8:  # it gets its own palette
            assert len(colorsOf(pillow)) <= 256
            assert meanError(pillow, wanted) < OPTIMAL_ERROR
        else:
            readers.assertSame([pillow], [wanted], 'Pillow', path)
        desk.expectIcon(picture, 'the icon that was saved as a bitmap')
        assert desk.program.value('File') == icon


def test_a_bitmap_is_given_up_at_the_question_and_in_the_file_dialog_and_named_by_it(session):
    desk = PanelDesk(session)
    desk.start()
    desk.openContent('a.ico', icons.icons((SIZE, 4)), SIZE)  # opened by the dialog, which returns to its folder
    desk.program.menu('File', 'Save As Bitmap')
    desk.program.answerBox(BACKGROUND_QUESTION, 'alt+n')
    desk.program.menu('File', 'Save As Bitmap')
    desk.program.answerBox(BACKGROUND_QUESTION, 'alt+y')
    desk.program.wait(lambda: desk.proposedName() == 'a', 'the proposed name')
    desk.program.giveUpFile()
    assert os.listdir(session.path()) == ['a.ico']
    desk.program.menu('File', 'Save As Bitmap')
    desk.program.answerBox(BACKGROUND_QUESTION, 'alt+y')
    desk.program.wait(lambda: desk.proposedName() == 'a', 'the proposed name')
    desk.program.keys('Return')
    desk.program.waitForNoDialog()
    desk.program.wait(lambda: sorted(os.listdir(session.path())) == ['a.bmp', 'a.ico'], 'the bitmap')
    assert bitsOf(session.path('a.bmp')) == 4

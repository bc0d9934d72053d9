"""Three pictures drawn with mouse and keyboard. The expected pictures are computed here, pixel by pixel, from the
purpose of each tool; only ovals are taken from the measured pictures in tests/data/gdi."""
import math
import os

import icons

SIZE = 32
GROUND = (192, 192, 192)  # visible through transparent pixels
GOLDEN = os.path.join(os.path.dirname(os.path.realpath(__file__)), '..', 'data', 'gdi')
CHART = '16-Color Palette'
CHART_COLUMNS, CHART_ROWS = 8, 2
CELLS = {'red': ((3, 0), (255, 0, 0)), 'yellow': ((4, 0), (255, 255, 0)), 'blue': ((7, 0), (0, 0, 255)),
         'purple': ((2, 1), (128, 0, 128)), 'maroon': ((3, 1), (128, 0, 0)), 'green': ((5, 1), (0, 128, 0)),
         'teal': ((6, 1), (0, 128, 128)), 'navy': ((7, 1), (0, 0, 128))}
COLOR = {name: color for name, (_, color) in CELLS.items()}


# Pictures ------------------------------------------------------------------------------------------------------------

def blank():
    return [[None] * SIZE for _ in range(SIZE)]


def copyOf(picture):
    return [list(row) for row in picture]


def isInside(x, y):
    return 0 <= x < SIZE and 0 <= y < SIZE


def mapped(source):
    """The picture whose pixel (x, y) is `source(x, y)`."""
    return [[source(x, y) for x in range(SIZE)] for y in range(SIZE)]


def box(picture, x1, y1, x2, y2, color):
    for y in range(y1, min(y2, SIZE - 1) + 1):
        for x in range(x1, min(x2, SIZE - 1) + 1):
            picture[y][x] = color


def frame(picture, x1, y1, x2, y2, color):
    for x in range(x1, x2 + 1):
        picture[y1][x] = picture[y2][x] = color
    for y in range(y1, y2 + 1):
        picture[y][x1] = picture[y][x2] = color


def flood(picture, x, y, color):
    start, waiting = picture[y][x], [(x, y)]
    assert start != color
    while waiting:
        x, y = waiting.pop()
        if isInside(x, y) and picture[y][x] == start:
            picture[y][x] = color
            waiting += [(x + 1, y), (x - 1, y), (x, y + 1), (x, y - 1)]


def replace(picture, old, new):
    for row in picture:
        row[:] = [new if pixel == old else pixel for pixel in row]


def golden(name, **wanted):
    """Box and rows of the measured case with these values."""
    with open(os.path.join(GOLDEN, name), encoding='utf-8') as file:
        lines = file.read().splitlines()
    for number, line in enumerate(lines):
        words = line.split()
        values = dict(word.split('=') for word in words[2:]) if line.startswith('case ') else {}
        if values and words[1].startswith(('arc_', 'box')) and all(values.get(key) == str(value) for key, value in wanted.items()):
            rows = lines[number + 1:number + 1 + int(values['h'])]
            return [int(values[key]) for key in ('left', 'top', 'right', 'bottom')], rows
    raise AssertionError(f'no such case in {name}: {wanted}')


def oval(picture, x, y, color, case):
    """An oval dragged from (x, y), and the last corner of the drag."""
    (left, top, right, bottom), rows = case
    for row, line in enumerate(rows):
        for column, cell in enumerate(line):
            if cell != '.':
                picture[y + row - top][x + column - left] = color
    return x + right - left - 1, y + bottom - top - 1


def cutOut(picture, x1, y1, x2, y2):
    """Removes the content of a box and returns it; the box becomes transparent."""
    content = [row[x1:x2 + 1] for row in picture[y1:y2 + 1]]
    box(picture, x1, y1, x2, y2, None)
    return content


def merge(picture, content, x, y, opaque=False):
    for row, line in enumerate(content):
        for column, pixel in enumerate(line):
            if isInside(x + column, y + row) and (pixel or opaque):
                picture[y + row][x + column] = pixel or GROUND


def flippedHorizontally(content):
    return [row[::-1] for row in content]


def turnedLeft(content):
    """Pixel (i, j) goes to (j, width - 1 - i)."""
    return [list(column) for column in zip(*content)][::-1]


def turnedRight(content):
    return [list(column) for column in zip(*content[::-1])]


def rotated(picture, angle):
    """Each pixel is the one that a rotation around the centre finds in the picture."""
    middle, t = SIZE // 2, math.radians(angle)

    def source(x, y):
        dx, dy = x - middle, y - middle
        sx = round(middle + dx * math.cos(t) - dy * math.sin(t))
        sy = round(middle + dx * math.sin(t) + dy * math.cos(t))
        return picture[sy][sx] if isInside(sx, sy) else None
    return mapped(source)


def shifted(picture, dx, dy):
    return mapped(lambda x, y: picture[y - dy][x - dx] if isInside(x - dx, y - dy) else None)


def patchwork():
    """A pattern without repetition, even when rotated; transparent in places, black in others."""
    def pixel(x, y):
        if (x * 7 + y * 3) % 11 == 0 or x + y < 3:
            return None
        return icons.COLORS_16[(x * x + 3 * y + x * y // 4) % 16]
    picture = mapped(pixel)
    replace(picture, GROUND, (255, 255, 255))  # a copy has silver for transparent pixels
    return picture


# The program ---------------------------------------------------------------------------------------------------------

class Artist:
    def __init__(self, session, *arguments):
        self.session, self.program = session, session.start(*arguments)
        self.places = {}

    def findEditingArea(self):
        self.program.wait(lambda: self.program.value('Icon size') == f'{SIZE} x {SIZE}', 'the icon')
        self.left, self.top, width, _ = self.program.box(self.program.need('Editing Area'))
        self.cell = width // SIZE

    def middle(self, x, y):
        return self.left + x * self.cell + self.cell // 2, self.top + y * self.cell + self.cell // 2

    def corner(self, x, y):
        """The position just right of and below a corner of the grid, inside the area even at its end."""
        last = self.cell * SIZE - 1
        return self.left + min(x * self.cell + 1, last), self.top + min(y * self.cell + 1, last)

    def place(self, name):
        if name not in self.places:
            self.places[name] = self.program.centre(self.program.need(name))
        return self.places[name]

    def press(self, *names):
        for name in names:
            self.session.click(self.place(name))

    def pick(self, name):
        cell, color = CELLS[name]
        if CHART not in self.places:
            self.places[CHART] = self.program.box(self.program.need(CHART))
        left, top, width, height = self.places[CHART]
        self.session.click((left + (2 * cell[0] + 1) * width // (2 * CHART_COLUMNS),
                            top + (2 * cell[1] + 1) * height // (2 * CHART_ROWS)))
        shown = lambda: self.session.colorAt(self.place('Color to use')) == color
        self.program.wait(shown, f'{name} to be the current colour')

    def chooseBrush(self, size):
        self.program.menuByKeys('alt+b', str(size))

    def click(self, x, y, held=None):
        self.drag([self.middle(x, y)], held)

    def dragPixels(self, x1, y1, x2, y2, held=None):
        self.drag([self.middle(x1, y1), self.middle((x1 + x2) // 2, (y1 + y2) // 2), self.middle(x2, y2)], held)

    def drag(self, points, held=None):
        if held:
            self.session.xdotool('keydown', held)
        self.session.drag(points)
        if held:
            self.session.xdotool('keyup', held)

    def dragCorners(self, x1, y1, x2, y2, held=None):
        """Drags from one corner of the grid to another."""
        self.drag([self.corner(x1, y1), self.corner((x1 + x2) // 2, (y1 + y2) // 2), self.corner(x2, y2)], held)

    def mark(self, x1, y1, x2, y2):
        """Selects a region around these pixels, both corners included."""
        self.dragCorners(x1, y1, x2 + 1, y2 + 1)

    def moveRegion(self, x, y, dx, dy):
        """Drags the region by a corner of the grid inside it."""
        self.dragCorners(x, y, x + dx, y + dy)

    def stroke(self, pixels, color):
        """Waits for each pixel, because positions that follow too fast leave gaps."""
        self.session.move(self.middle(*pixels[0]))
        self.session.xdotool('mousedown', 1)
        for x, y in pixels:
            self.session.move(self.middle(x, y))
            self.program.wait(lambda: self.session.colorAt(self.middle(x, y)) == color, f'the stroke at {x}, {y}')
        self.session.xdotool('mouseup', 1)

    def shown(self):
        pixels = self.session.picture().convert('RGB').load()
        return mapped(lambda x, y: pixels[self.middle(x, y)])

    def expect(self, picture, what):
        """Waits until the Editing Area shows the picture."""
        wanted = mapped(lambda x, y: picture[y][x] or GROUND)
        last = []
        def isThere():
            last[:] = self.shown()
            return last == wanted
        try:
            self.program.wait(isThere, what)
        except AssertionError as problem:
            wrong = [(x, y, last[y][x], wanted[y][x]) for y in range(SIZE) for x in range(SIZE) if last[y][x] != wanted[y][x]]
            raise AssertionError(f'{problem}; {len(wrong)} pixels differ (x, y, shown, wanted): {wrong[:8]}') from None

    def undoAllAndRedoAll(self, steps):
        """Undoes and redoes everything; `steps` are the pictures from the baseline to now."""
        for number in range(len(steps) - 1, 0, -1):
            self.program.command('ctrl+z')
            self.expect(steps[number - 1], f'Undo of step {number}')
        self.program.wait(lambda: not self.program.isEnabled(self.program.need('Undo')), 'Undo to be dim')
        for number in range(1, len(steps)):
            self.program.command('ctrl+r')
            self.expect(steps[number], f'Redo of step {number}')
        self.program.wait(lambda: not self.program.isEnabled(self.program.need('Redo')), 'Redo to be dim')

    def answer(self, beginning, key):
        dialog = self.program.waitForDialog()
        text = self.program.dialogText(dialog)
        assert text.startswith(beginning), text
        self.program.keys(key)
        self.program.waitForNoDialog()

    def saveAndCompare(self, name, picture):
        path = self.session.path(name)
        self.program.command('ctrl+t')
        self.program.answerFileDialog(path)
        self.program.wait(lambda: os.path.isfile(path), 'the saved file')
        for reader, read in icons.READERS.items():
            assert read(path) == picture, f'{reader} reads other pixels in {name}'


def openPatchwork(session):
    path = session.path('patchwork.ico')
    with open(path, 'wb') as file:
        file.write(icons.icon16(patchwork()))
    artist = Artist(session, path)
    artist.findEditingArea()
    artist.expect(patchwork(), 'the opened icon')
    return artist, patchwork()


# The pictures --------------------------------------------------------------------------------------------------------

def test_a_picture_that_uses_every_tool(session):
    artist = Artist(session)
    artist.program.command('ctrl+n')
    artist.findEditingArea()
    artist.program.menuByKeys('alt+p', '1')
    picture = blank()
    steps = [copyOf(picture)]

    def step(what):
        artist.expect(picture, what)
        steps.append(copyOf(picture))

    artist.pick('red')
    artist.press('Clear all tools', 'Paint')  # a new icon starts with a tool selected
    artist.stroke([(2, 2), (3, 2), (4, 2)], COLOR['red'])
    box(picture, 2, 2, 4, 2, COLOR['red'])
    step('a stroke of Paint')

    artist.chooseBrush(3)
    artist.click(6, 2)
    box(picture, 6, 2, 8, 4, COLOR['red'])
    step('Paint with a brush of 3')

    artist.chooseBrush(1)
    artist.pick('navy')
    artist.press('Line')
    artist.dragPixels(2, 6, 7, 9, held='shift')
    for i in range(6):
        picture[6 + i][2 + i] = COLOR['navy']
    step('a diagonal Line')

    artist.pick('green')
    artist.press('Rectangle')
    artist.dragPixels(10, 2, 16, 7)
    frame(picture, 10, 2, 16, 7, COLOR['green'])
    step('Rectangle')

    artist.pick('blue')
    artist.press('Filled Rectangle')
    artist.dragPixels(24, 6, 18, 2)
    box(picture, 18, 2, 24, 6, COLOR['blue'])
    step('Filled Rectangle, dragged up and left')

    artist.pick('purple')
    artist.press('Oval')
    corner = oval(picture, 2, 16, COLOR['purple'], golden('arcs.txt', pen=1, rx=3, ry=3))
    artist.dragPixels(2, 16, *corner)
    step('Oval')

    artist.pick('teal')
    artist.press('Filled Oval')
    corner = oval(picture, 14, 16, COLOR['teal'], golden('ellipses_boxes.txt', pen=2, filled=1, w=13, h=13, left=3, right=10))
    artist.dragPixels(14, 16, *corner)
    step('Filled Oval')

    artist.pick('yellow')
    artist.press('Fill')
    artist.click(12, 4)
    flood(picture, 12, 4, COLOR['yellow'])
    step('Fill')

    artist.pick('maroon')
    artist.press('Replace painted color')
    artist.click(20, 4)
    replace(picture, COLOR['blue'], COLOR['maroon'])
    step('Replace')

    artist.chooseBrush(2)
    artist.press('Erase')
    artist.click(18, 2)
    box(picture, 18, 2, 19, 3, None)
    step('Erase')

    artist.undoAllAndRedoAll(steps)

    artist.press('Fill')
    artist.click(13, 5, held='shift')
    flood(picture, 13, 5, None)
    artist.expect(picture, 'Fill with transparent')
    artist.press('Replace painted color')
    artist.click(22, 5, held='shift')
    replace(picture, COLOR['maroon'], None)
    artist.expect(picture, 'Replace by transparent')

    before = copyOf(picture)
    artist.press('Restore/copy pixel of icon in panel')
    artist.click(7, 3)
    picture[3][7] = None
    artist.expect(picture, 'a pixel as it is in the panel')
    artist.press('Paint')
    artist.click(31, 31)
    picture[31][31] = COLOR['maroon']
    artist.expect(picture, 'a brush of 2 in the last corner')
    artist.program.command('ctrl+z')
    artist.expect(before, 'Undo of the step and of Restore before it')
    artist.program.command('ctrl+r')
    artist.expect(picture, 'both again')

    artist.program.menuByKeys('alt+p', '2')
    artist.program.command('F3')
    artist.click(10, 2)
    artist.program.command('F4')
    artist.click(0, 30)
    box(picture, 0, 30, 1, 31, COLOR['green'])
    artist.expect(picture, 'Paint in the colour that was picked')

    artist.press('Region')
    artist.mark(10, 2, 16, 7)
    artist.moveRegion(13, 4, 8, 20)
    merge(picture, cutOut(picture, 10, 2, 16, 7), 18, 22)
    artist.expect(picture, 'the region at its new place')
    session.click(artist.corner(2, 26))
    artist.expect(picture, 'the region merged')

    artist.press('Set/unset shift image', 'Shift right', 'Shift right', 'Shift up', 'Set/unset shift image')
    picture = shifted(picture, 2, -1)
    artist.expect(picture, 'the shifted picture')
    artist.saveAndCompare('every tool.ico', picture)


def test_a_picture_that_uses_every_region_command(session):
    artist, picture = openPatchwork(session)
    artist.press('Region')
    steps = [copyOf(picture)]

    def merged(what, x, y):
        """Merges the region by a click outside it, at a corner of the grid."""
        artist.expect(picture, what)
        session.click(artist.corner(x, y))
        artist.expect(picture, what + ', merged')
        steps.append(copyOf(picture))

    artist.mark(4, 4, 9, 7)
    artist.moveRegion(6, 6, 10, 3)
    merge(picture, cutOut(picture, 4, 4, 9, 7), 14, 7)
    merged('a region dragged', 28, 28)

    artist.dragCorners(10, 16, 4, 12)  # up and left
    artist.press('Flip icon/region horizontally', 'Flip icon/region vertically', 'Rotate icon/region left 90-degree')
    content = cutOut(picture, 4, 12, 9, 15)
    merge(picture, turnedLeft(flippedHorizontally(content)[::-1]), 4, 12)
    merged('a region flipped twice and turned left', 28, 28)

    artist.mark(24, 2, 28, 4)
    artist.press('Rotate icon/region right 90-degree')
    merge(picture, turnedRight(cutOut(picture, 24, 2, 28, 4)), 24, 2)
    merged('a region turned right', 4, 28)

    artist.mark(16, 12, 21, 17)
    artist.dragCorners(22, 15, 24, 15)  # its right side
    artist.moveRegion(18, 14, 0, 8)
    merge(picture, cutOut(picture, 16, 12, 23, 17), 16, 20)
    merged('a region made wider and dragged', 4, 4)

    artist.mark(0, 0, 3, 3)
    artist.program.command('ctrl+u')
    box(picture, 0, 0, 3, 3, None)
    artist.expect(picture, 'a region erased')
    steps.append(copyOf(picture))

    artist.dragCorners(26, 25, 30, 27, held='shift')
    artist.program.command('ctrl+x')
    content = cutOut(picture, 26, 25, 29, 28)
    assert any(None in row for row in content) and any(any(row) for row in content)
    artist.expect(picture, 'a square region cut')
    steps.append(copyOf(picture))
    artist.undoAllAndRedoAll(steps)

    artist.program.command('ctrl+v')
    beneath = copyOf(picture)
    merge(picture, content, 0, 0)
    artist.expect(picture, 'the cut region pasted')
    artist.moveRegion(2, 2, 6, 20)
    picture = copyOf(beneath)
    merge(picture, content, 6, 20)
    merged('the pasted region dragged', 28, 4)

    artist.program.command('ctrl+v')
    pasted = copyOf(picture)
    merge(pasted, content, 0, 0)
    artist.expect(pasted, 'the region pasted again')
    artist.program.command('ctrl+u')
    artist.expect(picture, 'what lies beneath a floating region that is erased')

    artist.press('Paste opaque')
    artist.moveRegion(2, 2, 10, 1)
    merge(picture, content, 10, 1, opaque=True)
    merged('a region pasted opaque', 28, 28)

    artist.program.command('ctrl+c')
    artist.program.wait(lambda: artist.program.isEnabled(artist.program.need('Paste')), 'Paste to be possible')
    artist.program.menu('Edit', 'Clear Clipboard')
    artist.program.wait(lambda: not artist.program.isEnabled(artist.program.need('Paste')), 'Paste to be dim')

    artist.program.menu('Edit', 'Copy To Another Container', 'To Container 2')
    artist.answer('Copy current icon to Container 2.  Proceed?', 'alt+y')
    artist.press('Container 2')
    artist.expect(picture, 'the copy')
    artist.saveAndCompare('regions.ico', picture)
    artist.program.menu('Edit', 'Clear Container')
    artist.answer('Clear current icon from container.  Proceed?', 'alt+y')
    artist.program.wait(lambda: artist.program.value('Icon size') == '', 'the container to be empty')


def test_a_picture_that_is_shifted_flipped_and_rotated(session):
    artist, picture = openPatchwork(session)
    steps = [copyOf(picture)]
    for button, change in (('Flip icon/region horizontally', flippedHorizontally),
                           ('Rotate icon/region left 90-degree', turnedLeft),
                           ('Flip icon/region vertically', lambda rows: rows[::-1]),
                           ('Rotate icon/region right 90-degree', turnedRight)):
        artist.press(button)
        picture = change(picture)
        artist.expect(picture, button)
        steps.append(copyOf(picture))

    artist.program.menu('Rotate', 'Rotate At Any Selected Angle')
    artist.press('Angle')
    artist.program.typeInto('Angle', '33')
    session.keys('Return')
    picture = rotated(picture, 33)
    artist.expect(picture, 'the picture rotated by 33 degrees')
    steps.append(copyOf(picture))
    artist.undoAllAndRedoAll(steps)

    artist.press('Set/unset shift image', *['Shift left'] * 3, *['Shift down right'] * 2)
    artist.expect(shifted(picture, -1, 2), 'the shifted picture')
    artist.program.command('ctrl+z')
    artist.expect(picture, 'Undo of all of Shift')

    artist.press('Set/unset shift image', *['Shift up'] * 5)
    artist.expect(shifted(picture, 0, -5), 'rows pushed over the edge')
    artist.press(*['Shift down'] * 5)
    artist.expect(picture, 'the rows back again')
    artist.press(*['Shift up right'] * 2)
    picture = shifted(picture, 2, -2)
    artist.expect(picture, 'the picture shifted again')
    artist.press('Flip icon/region horizontally')
    artist.answer('Terminate Shift operation and accept the current image?', 'alt+y')
    picture = flippedHorizontally(picture)
    artist.expect(picture, 'the shifted picture flipped')
    artist.saveAndCompare('turned.ico', picture)

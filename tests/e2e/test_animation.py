"""Animated cursors: films made from the Editing Area, icons and a cursor, by mouse and by keyboard alone; the pane in its
three sizes."""
import os

import films
import icons
from forms import HOTSPOT_X, HOTSPOT_Y, Desk, read, write
from hearing import DESCRIBED, Hearing

SIZE = 32
GROUND, WHITE = (192, 192, 192), (255, 255, 255)
CELL_HEIGHT, FILM_EDGE = 50, 2
CREATE, OPEN, SAVE = 'Create new ANI file', 'Open ANI file', 'Save to ANI file -- Cursor-based'
TAKE, PUT = 'From Editing Area', 'To Editing Area'
BELOW, ABOVE, REMOVE, UP, DOWN = ('Add new frame below', 'Add new frame above', 'Remove current frame', 'Shift current up',
                                  'Shift current down')
LOAD, INTERVAL = 'Load direct from ICO file to current frame', 'Set interval between frames'
JIFFIES, SINGLY = 'Jiffies', 'Set singly'
LOSS_QUESTION = 'Without saving frames to file first?'
YES, NO = 'alt+y', 'alt+n'


def taken(picture):
    """A picture as a frame has it that came by way of the Editing Area."""
    return [[WHITE if pixel == GROUND else pixel for pixel in row] for row in picture]


class FilmDesk(Desk):
    def button(self, name):
        self.program.press(name, role='push button')

    def enter(self):
        self.program.menu('Animation', 'Create/Edit Animated Cursor File')
        self.program.need('Film', role='canvas')

    def isShown(self):
        return self.program.find('Film', role='canvas')

    def waitForTitle(self, name):
        """Waits for an icon. While the pane is up, the status bar has the path of the film."""
        self.program.wait(lambda: self.program.mainForm().name.startswith(name), f'{name} in the Editing Area')

    def waitForFilm(self, value):
        self.program.wait(lambda: self.program.value('Film', role='canvas') == value, f'the film at "{value}"; it is at '
                          + repr(self.program.value('Film', role='canvas')))

    def addFrame(self, count):
        self.button(BELOW)
        self.program.wait(lambda: self.program.value('Film', role='canvas').startswith(f'Frame {count} of {count},'), 'the new frame')

    def clickCell(self, number):
        left, top, width, _ = self.program.box(self.program.need('Film', role='canvas'))
        self.session.click((left + width // 2, top + FILM_EDGE + CELL_HEIGHT * (number - 1) + CELL_HEIGHT // 2))

    def setJiffies(self, jiffies):
        self.choose(JIFFIES, jiffies - 1)
        self.program.wait(lambda: self.held(JIFFIES) == str(jiffies), f'{jiffies} in the list')
        self.button(INTERVAL)

    def save(self, path, question, **how):
        self.button(SAVE)
        self.program.answerBox(question, YES)
        self.program.chooseFile(path, **how)
        self.program.waitForNoDialog()

    def testPicture(self):
        """The colours of the picture of the test, at the middle of each pixel."""
        left, top, width, height = self.program.box(self.program.need('Test of the animation'))
        factor = (min(width, height) - 2) // SIZE
        pixels = self.session.picture().convert('RGB').load()
        places = [1 + factor * i + factor // 2 for i in range(SIZE)]
        return [[pixels[left + x, top + y] for x in places] for y in places]

    def waitForTestPicture(self, picture):
        wanted = [[pixel or WHITE for pixel in row] for row in picture]
        self.program.wait(lambda: self.testPicture() == wanted, 'a frame in the test')


def openIcon(desk, name, content):
    path = write(desk.session, name, content)
    desk.openFile(path)
    desk.waitForTitle(name)


def test_a_film_of_five_frames_is_made_by_mouse_tested_saved_and_opened_again(session):
    motifs = [icons.motif(SIZE, bits, seed) for seed, bits in enumerate((4, 8, 4, 24, 4))]
    cursor = write(session, 'hand.cur', icons.cursor(motifs[2], 4, 3, 9))
    loaded = write(session, 'loaded.ico', icons.fileOf([icons.entryOf(motifs[1], 8)]))
    first = write(session, 'first.ico', icons.fileOf([icons.entryOf(motifs[0], 4)]))
    desk = FilmDesk(session, first)
    desk.waitForIcon(SIZE, first)
    desk.enter()
    assert not desk.program.nameless(desk.program.need('Create/Edit ANI', role='panel'))
    assert not desk.program.isEnabled(desk.program.need(SAVE, role='push button'))
    desk.button(CREATE)
    desk.waitForFilm('Frame 1 of 1, 30 jiffies')
    desk.button(TAKE)
    desk.addFrame(2)
    desk.button(LOAD)
    desk.program.answerFileDialog(loaded)
    desk.addFrame(3)
    desk.openCursor(cursor)
    desk.waitForTitle('hand.cur')
    desk.button(TAKE)
    for number, bits in ((4, 24), (5, 4)):
        desk.addFrame(number)
        openIcon(desk, f'icon {number}.ico', icons.fileOf([icons.entryOf(motifs[number - 1], bits)]))
        desk.button(TAKE)

    desk.setJiffies(10)
    desk.program.answerBox('Jiffies set (for all frames)')
    desk.waitForFilm('Frame 5 of 5, 10 jiffies')
    desk.program.press(SINGLY, role='check box')
    desk.clickCell(2)
    desk.waitForFilm('Frame 2 of 5, 10 jiffies')
    desk.setJiffies(6)
    desk.waitForFilm('Frame 2 of 5, 6 jiffies')
    desk.button(UP)
    desk.waitForFilm('Frame 1 of 5, 6 jiffies')
    desk.clickCell(4)
    desk.button(DOWN)
    desk.waitForFilm('Frame 5 of 5, 10 jiffies')
    desk.choose(HOTSPOT_X, 3)
    desk.choose(HOTSPOT_Y, 9)
    wanted = [motifs[1], taken(motifs[0]), taken(motifs[2]), taken(motifs[4]), taken(motifs[3])]

    desk.button('Test')
    for picture in (wanted[3], wanted[0]):
        desk.waitForTestPicture(picture)
    desk.button('Stop')
    desk.program.need('Test', role='push button')
    desk.waitForTestPicture([[None] * SIZE] * SIZE)

    saved = session.path('film.ani')
    desk.save(saved, 'To save: Hot spot: [3, 9]')
    desk.program.wait(lambda: os.path.isfile(saved), 'the film')
    film = films.readFilm(saved)
    assert film.jiffies == [6, 10, 10, 10, 10]
    assert film.hotspots == [(3, 9)] * 5
    assert film.pictures == wanted
    assert (film.title, film.artist) == ('Edited with Glimmerpane of Zorvex Lattice', 'ZorvexLattice')

    desk.button('Close')
    desk.program.wait(lambda: not desk.isShown(), 'the pane to close')
    desk.enter()
    desk.waitForFilm('Frame 5 of 5, 10 jiffies')  # the film is kept
    desk.button(CREATE)
    desk.waitForFilm('Frame 1 of 1, 6 jiffies')
    desk.button(OPEN)
    desk.program.answerFileDialog(saved)
    desk.waitForFilm('Frame 1 of 5, 6 jiffies')
    assert (desk.held(HOTSPOT_X), desk.held(HOTSPOT_Y)) == ('3', '9')
    assert desk.program.value('File') == saved
    desk.button(PUT)
    desk.waitForTitle('FromAni_1')

    before = read(saved)
    desk.button(REMOVE)
    desk.waitForFilm('Frame 1 of 4, 10 jiffies')
    desk.button('Close ANI session')
    desk.program.answerBox(LOSS_QUESTION, NO)
    assert desk.isShown()
    desk.button('Close')
    desk.program.answerBox(LOSS_QUESTION, YES)
    desk.program.wait(lambda: not desk.isShown(), 'the pane to close')
    assert read(saved) == before


def test_a_film_is_made_by_keyboard_alone(session):
    motif = icons.motif(SIZE, 4)
    path = write(session, 'icon.ico', icons.fileOf([icons.entryOf(motif, 4)]))
    desk = FilmDesk(session, path)
    desk.waitForIcon(SIZE, path)
    program = desk.program
    program.menuByKeys('alt+m', 'c')
    program.wait(lambda: program.isFocused(program.need(CREATE, role='push button')), 'the focus on the first button')
    program.keys('space')
    desk.waitForFilm('Frame 1 of 1, 30 jiffies')
    program.goTo(TAKE, role='push button')
    program.keys('space')
    program.goTo(BELOW, role='push button')
    program.keys('space', 'space')
    desk.waitForFilm('Frame 3 of 3, 30 jiffies')
    program.goTo(JIFFIES, role='combo box')
    program.keys('Home', 'Down', 'Down', 'Down')
    program.wait(lambda: desk.held(JIFFIES) == '4', 'the entry')
    program.goTo(SINGLY, role='check box')
    program.keys('space')
    program.goTo(INTERVAL, role='push button')
    program.keys('space')
    desk.waitForFilm('Frame 3 of 3, 4 jiffies')
    program.goTo('Film', role='canvas')
    with Hearing(session, program, DESCRIBED) as hearing:
        program.keys('ctrl+Up')
        desk.waitForFilm('Frame 2 of 3, 4 jiffies')
        hearing.waitFor(lambda events: [DESCRIBED, 'canvas', 'Film'] in [event[:3] for event in events], 'the film to be spoken')
    program.keys('End')
    desk.waitForFilm('Frame 3 of 3, 30 jiffies')
    program.keys('Delete')
    desk.waitForFilm('Frame 2 of 2, 4 jiffies')
    program.keys('Home')
    desk.waitForFilm('Frame 1 of 2, 30 jiffies')
    program.goTo('Test', role='push button')
    program.keys('space')
    program.need('Stop', role='push button')
    desk.waitForTestPicture(taken(motif))
    program.keys('space')
    program.need('Test', role='push button')

    saved = session.path('keys.ani')
    program.goTo(CREATE, role='push button')
    program.keys('Right', 'Right')
    program.wait(lambda: program.isFocused(program.need(SAVE, role='push button')), 'the focus on the button that saves')
    program.keys('space')
    program.answerBox('To save: Hot spot: [0, 0]', YES)
    program.answerFileDialog(saved)
    program.wait(lambda: os.path.isfile(saved), 'the film')
    film = films.readFilm(saved)
    assert film.jiffies == [30, 4]
    assert film.pictures == [taken(motif), [[None] * SIZE] * SIZE]
    program.keys('Escape')
    program.wait(lambda: not desk.isShown(), 'the pane to close')
    program.wait(lambda: program.isFocused(program.need('Editing Area')), 'the focus on the Editing Area')


def test_the_pane_is_made_smaller_dragged_and_restored_while_one_draws(session):
    path = write(session, 'icon.ico', icons.fileOf([icons.entryOf(icons.motif(SIZE, 4), 4)]))
    desk = FilmDesk(session, path)
    desk.waitForIcon(SIZE, path)
    program = desk.program
    desk.enter()
    desk.button(CREATE)

    def paneBox():
        return program.box(program.need('Create/Edit ANI', role='panel'))

    normal = paneBox()
    desk.button('Resize')
    program.wait(lambda: paneBox()[3] < normal[3] // 2, 'the compact pane')
    assert not program.find(OPEN, role='push button')
    chart = program.box(program.need('16-Color Palette'))
    assert chart[1] + chart[3] <= paneBox()[1]
    program.command('F4')
    session.click(program.chartPoint('16-Color Palette', 3, 0, 8, 2))
    color = session.colorAt(program.centre(program.need('Color to use')))
    session.click(program.pixelPoint(5, 6, SIZE))
    desk.waitForPixel(5, 6, SIZE, color)
    desk.button(TAKE)
    desk.button('Minimize')
    program.wait(lambda: not desk.isShown(), 'the minimized pane')
    left, top, _, height = paneBox()
    assert height < 40
    title = (left + 60, top + height // 2)
    session.drag([title, (title[0] - 90, title[1] - 100), (title[0] - 200, title[1] - 150)])
    program.wait(lambda: paneBox()[:2] == (left - 200, top - 150), 'the pane at its new place')
    session.xdotool('mousemove', title[0] - 200, title[1] - 150, 'click', '--repeat', 2, '--delay', 50, 1)
    program.wait(lambda: paneBox()[2:] == normal[2:], 'the pane at its normal size')
    desk.waitForFilm('Frame 1 of 1, 30 jiffies')
    left, top, _, _ = program.box(program.need('Film', role='canvas'))
    seen = session.colorAt((left + FILM_EDGE + 13 + 5, top + FILM_EDGE + 8 + 6))
    assert seen == color, f'{seen} in the film'

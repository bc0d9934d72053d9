"""The forms of icon files as a user works with them: controls are found by the names that a screen reader speaks."""
import os
import time

EDIT_FACE, ADD_FACE = 'Edit Icon In Multi-Icon File', 'Add Icon To Existing Icon File'
REST_SECONDS = 0.5  # longer than a phase of the blinking
CHART = '16-Color Palette'
HEADER_DIFF = 'Header Entry Diff'
ICONS, SEQUENCE, CONTAINER, POSITION = 'Icons in file', 'Icons in their new sequence', 'Load to container ref', 'Add to position ref'
HOTSPOT_X, HOTSPOT_Y = 'Hot spot X', 'Hot spot Y'
REPLACE_QUESTION = 'The current icon is originated from Index Ref. '
REMOVE_QUESTION = 'Permanently remove the selected icon from the multi-icon file.'
ALPHA_REMINDER = 'Reminder: The incoming icon is with Alpha Channel.'


def write(session, name, content):
    path = session.path(name)
    with open(path, 'wb') as file:
        file.write(content)
    return path


def read(path):
    with open(path, 'rb') as file:
        return file.read()


class Desk:
    """A program, with the actions that the tests of these forms need."""

    def __init__(self, session, *arguments, **how):
        self.session, self.program = session, session.start(*arguments, **how)

    # Forms -----------------------------------------------------------------------------------------------------------

    def form(self, title):
        return next((dialog for dialog in self.program.dialogs() if dialog.name == title), None)

    def waitForForm(self, title):
        form = self.program.wait(lambda: self.form(title), f'the form "{title}"')
        self.program.waitForKeys()
        return form

    def waitForNoForm(self, title):
        self.program.wait(lambda: not self.form(title), f'the form "{title}" to close')
        self.program.waitForKeys()

    def nameless(self):
        """The controls without a name on the open form or panel."""
        return self.program.nameless(next(iter(self.program.dialogs()), None) or self.program.need('Save as cursor'))

    def openIcons(self, path):
        """Opens a file of several icons, which shows its browser."""
        self.program.command('ctrl+o')
        self.program.chooseFile(path)
        return self.waitForForm(EDIT_FACE)

    def exitBrowser(self):
        self.program.press('Exit')
        self.waitForNoForm(EDIT_FACE)

    def openFile(self, path):
        """Opens a file of one icon."""
        self.program.command('ctrl+o')
        self.program.answerFileDialog(path)

    def openCursor(self, path):
        self.program.menu('File', 'Open Cursor File')
        self.program.chooseFile(path)

    # Lists -----------------------------------------------------------------------------------------------------------

    def refs(self, name=ICONS):
        """The texts of the entries of a list, in order."""
        control = self.program.need(name, role='list')
        return [control.getChildAtIndex(index).name for index in range(control.childCount)]

    def isSelected(self, ref):
        item = self.program.find(f'Ref {ref},', role='list item', startsWith=True)
        return item and self.program.isSelected(item)

    def waitForSelected(self, ref):
        self.program.wait(lambda: self.isSelected(ref), f'Ref {ref} to be selected')

    def pick(self, ref):
        """Clicks on an entry of the visible list."""
        self.program.press(f'Ref {ref},', role='list item', startsWith=True)
        self.waitForSelected(ref)

    def choose(self, name, item):
        """Opens a drop-down list by mouse and selects the item, counted from 0, by keys."""
        self.openList(name)
        self.session.keys('Home', *['Down'] * item, 'Return')
        self.program.wait(lambda: not self.dropDown(name), f'the list of "{name}" to close')

    def openList(self, name):
        self.program.press(name, role='combo box')
        self.program.wait(lambda: self.dropDown(name), f'the list of "{name}" to drop down')

    def dropDown(self, name):
        """The open drop-down list, or None."""
        return self.program.find('', role='list', under=self.program.need(name, role='combo box'))

    def held(self, name):
        """The text of a drop-down list."""
        return self.program.need(name, role='combo box').name

    def shift(self, *moves):
        """In the reposition pane: moves Refs down by the given number of places, or up if it is negative."""
        for ref, places in moves:
            self.pick(ref)
            for _ in range(abs(places)):
                self.program.press('Up' if places < 0 else 'Down')

    def proposedName(self):
        """The text in the field of the file dialog."""
        return self.program.value('File name:', role='text')

    # Loading ---------------------------------------------------------------------------------------------------------

    def load(self, ref, container=None):
        """Loads an entry and returns to the browser."""
        self.prepareLoad(ref, container)
        self.program.press('Load')
        self.waitForForm(EDIT_FACE)

    def loadAndExit(self, ref, container=None):
        self.prepareLoad(ref, container)
        self.program.press('Load & Exit')
        self.waitForNoForm(EDIT_FACE)

    def prepareLoad(self, ref, container):
        self.pick(ref)
        if container:
            self.choose(CONTAINER, container - 1)
            self.program.wait(lambda: self.held(CONTAINER) == str(container), f'container {container} to be chosen')

    # The main form ---------------------------------------------------------------------------------------------------

    def waitForIcon(self, size, path):
        self.program.wait(lambda: self.program.value('Icon size') == f'{size} x {size}' and self.program.value('File') == path,
                          f'the icon of {os.path.basename(path)}')

    def waitForPixel(self, x, y, size, color):
        """Waits until the Editing Area shows that colour."""
        self.program.wait(lambda: self.session.colorAt(self.program.pixelPoint(x, y, size)) == color, f'pixel {x}, {y} in {color}')

    def waitForRest(self, x, y, size):
        """Waits until a pixel has stopped blinking, and returns its colour."""
        point, seen = self.program.pixelPoint(x, y, size), []

        def rests():
            color, now = self.session.colorAt(point), time.monotonic()
            if not seen or seen[0] != color:
                seen[:] = [color, now]
            return now - seen[1] > REST_SECONDS

        self.program.wait(rests, f'pixel {x}, {y} to rest')
        return seen[0]

    def replaceIn(self, path, **how):
        """Save As Multi-Icon File, up to the end of the file dialog."""
        self.program.menu('File', 'Save As Multi-Icon File ....')
        self.program.answerBox(REPLACE_QUESTION, 'alt+y')
        self.program.chooseFile(path, **how)

    def addTo(self, path):
        """Save As Multi-Icon File (Add To), up to the end of the file dialog."""
        self.program.menu('File', 'Save As Multi-Icon File (Add To)')
        self.program.chooseFile(path)

    def addAtPosition(self, position):
        """On the add face: some icon of the file must be selected."""
        self.waitForForm(ADD_FACE)
        self.pick(1)
        self.choose(POSITION, position - 1)
        self.program.wait(lambda: self.held(POSITION) == str(position), f'position {position} to be chosen')
        self.program.press('Save')

    def paint(self, pixels, cell, color, size):
        """Clicks on pixels with a colour of the 16-color palette."""
        self.program.menu('Palette', CHART)
        self.session.click(self.program.chartPoint(CHART, *cell, 8, 2))
        self.program.press('Paint')
        for x, y in pixels:
            self.session.click(self.program.pixelPoint(x, y, size))
            self.waitForPixel(x, y, size, color)

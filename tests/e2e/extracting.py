"""The Icons List and the search for icons as a user works with them. Cells are counted from 0, as they are on the
panel."""
import os

from panels import PanelDesk

LIST, SEARCH = 'Icons List', 'Search & extract from exe files'
ICONS = 'Icons'
ANOTHER = 'Choose another folder or file'
COLUMNS, ROWS_ON_PAGE, RING, ICON = 3, 4, 2, 32
RIGHT_BUTTON = 3
MOST_LEVELS = 20


class ListDesk(PanelDesk):
    # Folders ---------------------------------------------------------------------------------------------------------

    def chooseFolder(self, path, isEmpty=False):
        """Goes to a folder in the folder dialog by keys, and accepts it; `isEmpty` also that it has no files."""
        self.waitForForm('Directory dialog')
        for _ in range(MOST_LEVELS):
            here = self.program.value('Selected folder')
            if here == path:
                break
            if path.startswith(here.rstrip(os.sep) + os.sep):
                folders = sorted((entry.name for entry in os.scandir(here) if entry.is_dir()), key=str.lower)
                self.session.keys(*['Down'] * (folders.index(os.path.relpath(path, here).split(os.sep)[0]) + 1), 'Return')
            else:
                self.session.keys('BackSpace')
            self.program.wait(lambda: self.program.value('Selected folder') != here, f'another folder than {here}')
        assert self.program.value('Selected folder') == path
        self.session.keys('alt+o')
        if isEmpty:
            self.program.answerBox('There is no', 'alt+y')
        self.waitForNoForm('Directory dialog')

    # The list --------------------------------------------------------------------------------------------------------

    def surface(self):
        return self.program.need(ICONS, role='list')

    def marked(self):
        """What is spoken of the list: its marked icon, or the counts."""
        return self.surface().description

    def waitForMark(self, text):
        self.program.wait(lambda: self.marked() == text, f'"{text}"; it is "{self.marked()}"')

    def waitForCounts(self, shown, all):
        """Waits until a panel of the list has been drawn."""
        self.waitForPanel(LIST)
        self.program.wait(lambda: self.program.value(ICONS, role='label') == f'Icons  {shown} / {all}', f'{shown} of {all} icons')
        self.program.wait(lambda: self.program.isEnabled(self.program.need(ANOTHER)), 'the list to be drawn')

    def cellPoint(self, cell):
        """The middle of a cell of the first page."""
        left, top, width, height = self.program.box(self.surface())
        column, row = cell % COLUMNS, cell // COLUMNS
        return (left + RING + (width - 2 * RING) * (2 * column + 1) // (2 * COLUMNS),
                top + RING + (height - 2 * RING) * (2 * row + 1) // (2 * ROWS_ON_PAGE))

    def click(self, cell, button=1):
        self.session.click(self.cellPoint(cell), button=button)

    def colorsIn(self, cell):
        """The colours that are visible in a cell of the first page."""
        x, y = self.cellPoint(cell)
        reach = ICON // 2
        return set(self.session.picture().convert('RGB').crop((x - reach, y - reach, x + reach, y + reach)).getdata())

    def saveNew(self, path):
        """Saves an icon that has no file yet."""
        self.program.command('ctrl+s')
        self.program.chooseFile(path)
        self.program.wait(lambda: os.path.isfile(path), f'{path} to be saved')

"""What the Inquiry menu reports in boxes: properties, colours and bytes of the current icon, by menu, key and toolbar."""
import os

import icons
from panels import PanelDesk

PROPERTIES, COLORS, BYTES = 'PROPERTIES OF CURRENT ICON:', 'COUNT OF COLORS:', ' bytes when saved to a single-icon file.'
MENU, COLORS_MENU, BYTES_MENU = 'Inquiry', 'Enquiry - Number Of Colors Used', 'Enquiry - Number Of Bytes'
RED = (255, 0, 0)


def patches(size):
    """A red square on transparent ground."""
    return [[RED if x < size // 2 and y < size // 2 else None for x in range(size)] for y in range(size)]


def boxText(desk):
    """The text of the open box, which is then closed."""
    text = desk.program.dialogText(desk.program.wait(desk.program.messageBox, 'a box'))
    desk.program.answerBox(text)
    return text


def test_properties_come_by_key_and_toolbar_and_name_what_was_changed(session):
    desk = PanelDesk(session)
    desk.openContent('a.ico', icons.fileOf([icons.entryOf(patches(32), 24)]), 32)
    desk.program.command('ctrl+q')
    text = boxText(desk)
    for line in (PROPERTIES, 'Source:    ICO file', '/a.ico    ', 'Icon size:    32 x 32',
                 'Color-depth per original:   True-color  24 BPP', 'Current color-depth:   True-color  24 BPP',
                 'Change made:    No'):
        assert line in text, (line, text)
    desk.program.command('F4')
    session.click(desk.program.pixelPoint(20, 20, 32))
    desk.program.wait(lambda: desk.isPossible('Undo'), 'the icon to change')
    desk.program.press('General properties')
    assert 'Change made:    Yes' in boxText(desk)


def test_the_bytes_are_those_of_the_saved_file(session):
    desk = PanelDesk(session)
    for bits, size in (24, 32), (4, 48), (8, 16):
        path = desk.openContent(f'{bits}.ico', icons.fileOf([icons.entryOf(icons.motif(size, bits), bits)]), size)
        desk.program.command('F4')
        session.click(desk.program.pixelPoint(0, 0, size))
        desk.program.wait(lambda: desk.isPossible('Undo'), 'the icon to change')
        desk.save(path)
        desk.program.menu(MENU, BYTES_MENU)
        assert boxText(desk) == str(os.path.getsize(path)) + BYTES, bits


def test_colors_are_counted_with_the_black_of_transparent_pixels(session):
    desk = PanelDesk(session)
    desk.openContent('a.ico', icons.fileOf([icons.entryOf(patches(16), 24)]), 16)
    desk.program.menu(MENU, COLORS_MENU)
    text = boxText(desk)
    assert text.startswith(COLORS) and 'Actual count of colors used:   2' in text, text

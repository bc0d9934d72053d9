"""Files whose directory contradicts their images: shown side by side, and salvaged."""
import os

import icons
import readers
from forms import HEADER_DIFF, Desk, read, write

HEADERS = 'Icons in file'
REMINDER = 'Reminder: Header entries in the original file are discrepant.'
INQUIRY = ('Inquiry', 'Enquiry - Original Header Entry')
BY_BITMAP = 'Base on Bitmap Header'


def lyingEntries():
    """One entry states 16 colours for 8 bits, one a wrong size, and one is correct."""
    return [icons.entryOf(icons.motif(32, 8), 8, colors=16)._replace(bits=4),
            icons.entryOf(icons.motif(24, 4), 4)._replace(width=16, height=16), icons.entryOf(icons.motif(16, 4), 4)]


def openLying(session):
    path = write(session, 'lying.ico', icons.fileOf(lyingEntries()))
    desk = Desk(session)
    desk.openIcons(path)
    desk.loadAndExit(1)
    desk.program.answerBox(REMINDER)
    desk.waitForIcon(32, path)
    desk.program.wait(lambda: desk.program.value('Headers') == 'disagree', 'the asterisk')
    desk.program.menu(*INQUIRY)
    desk.waitForForm(HEADER_DIFF)
    return desk, path


def table(desk):
    values = {row: (desk.program.value(f'Colors per {row}'), desk.program.value(f'BPP per {row}'))
              for row in ('icon directory entry', 'bitmap header', 'actual image')}
    return list(values.values())


def test_a_lying_directory_is_shown_and_salvaged_by_the_bitmap_headers(session):
    desk, path = openLying(session)
    assert desk.refs(HEADERS) == ['1, 4-BPP, 16-Color, 32 x 32', '2, 4-BPP, 16-Color, 16 x 16', '3, 4-BPP, 16-Color, 16 x 16']
    assert table(desk) == [('16', '4'), ('16', '8'), ('256', '8')], table(desk)
    assert not desk.nameless(), desk.nameless()
    desk.program.press(BY_BITMAP)
    wanted = ['1, 8-BPP, 16-Color, 32 x 32', '2, 4-BPP, 16-Color, 24 x 24', '3, 4-BPP, 16-Color, 16 x 16']
    desk.program.wait(lambda: desk.refs(HEADERS) == wanted, 'the list by bitmap headers')
    desk.program.press('2,', role='list item', startsWith=True)
    desk.program.wait(lambda: table(desk) == [('16', '4')] * 3, 'the table of the second')

    desk.program.press('Salvage')
    desk.program.wait(lambda: desk.proposedName() == 'lying_X.ico', 'the proposed name')
    saved = session.path('lying_X.ico')
    desk.program.chooseFile(saved)
    desk.program.answerBox('Salvage to ' + saved, 'alt+n')
    assert not os.path.exists(saved)
    desk.program.press('Salvage')
    desk.program.chooseFile(saved)
    desk.program.answerBox('Salvage to ' + saved, 'alt+y')
    desk.program.answerBox(f'File salvaged to {saved} (per bitmap header entry, irrespective of actual color depth)')
    desk.program.press('Exit')
    desk.waitForNoForm(HEADER_DIFF)
    assert [entry[:6] for entry in icons.readEntries(saved)] == [(32, 32, 16, 0, 1, 8), (24, 24, 16, 0, 1, 4), (16, 16, 16, 0, 1, 4)]
    readers.assertIcons(saved, [(icons.motif(size, bits), bits) for size, bits in ((32, 8), (24, 4), (16, 4))])
    assert [entry.image for entry in icons.readEntries(saved)] == [entry.image for entry in lyingEntries()]
    assert read(path) == icons.fileOf(lyingEntries())


def test_salvage_by_keyboard_over_the_file_itself_and_given_up(session):
    desk, path = openLying(session)
    desk.program.keys('Escape')
    desk.waitForNoForm(HEADER_DIFF)
    desk.program.menuByKeys('alt+n', 'o')
    desk.waitForForm(HEADER_DIFF)
    desk.program.goTo('Salvage')
    desk.program.keys('space')
    desk.program.giveUpFile()
    desk.program.keys('space')
    desk.program.chooseFile(path)
    desk.program.answerBox(path + ' already in existence. Overwrite?', 'alt+n')
    assert read(path) == icons.fileOf(lyingEntries())
    desk.program.keys('space')
    desk.program.chooseFile(path)
    desk.program.answerBox(path + ' already in existence. Overwrite?', 'alt+y')
    desk.program.answerBox('File salvaged to ')
    desk.program.keys('Escape')
    desk.waitForNoForm(HEADER_DIFF)
    readers.assertIcons(path, [(icons.motif(size, bits), bits) for size, bits in ((32, 8), (24, 4), (16, 4))])


def test_an_entry_wider_than_128_refuses_the_whole_file(session):
    entries = lyingEntries()[:1] + [icons.entryOf(icons.motif(16, 4), 4)._replace(width=129)]
    path = write(session, 'wide.ico', icons.fileOf(entries))
    desk = Desk(session)
    desk.openIcons(path)
    desk.loadAndExit(1)
    desk.program.answerBox(REMINDER)
    desk.program.menu(*INQUIRY)
    desk.waitForForm(HEADER_DIFF)
    desk.program.press('Salvage')
    desk.program.answerBox('One or more icons have width or height exceeds 128, cannot save per actual')
    desk.program.keys('Escape')
    desk.waitForNoForm(HEADER_DIFF)
    assert os.listdir(session.path()) == ['wide.ico'] and read(path) == icons.fileOf(entries)

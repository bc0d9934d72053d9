"""Icons out of folders, libraries, animated cursors and other files: listed, paged, clicked and saved, by mouse and by
keyboard alone."""
import os
import struct

import icons
import libraries
from extracting import ANOTHER, LIST, RIGHT_BUTTON, ListDesk
from forms import read, write

INVALID = 'This one is an invalid icon file or of a size not 16x16, 24x24, 32x32 or 48x48.'
LARGE, SMALL = 'Extract Large Icons - DLL Or Similar Resource....', 'Extract Small Icons - DLL Or Similar Resource....'


def iconFolder(session, count, name='icons'):
    os.mkdir(session.path(name))
    for i in range(count):
        write(session, os.path.join(name, f'{i:03}.ico'), icons.fileOf([icons.entryOf(icons.motif(32, 4, i), 4)]))
    return session.path(name)


def openList(desk, path, shown, all, *menu):
    """Opens a file by a command of the Extract menu."""
    desk.program.menu('Extract', *menu)
    desk.program.answerFileDialog(path)
    desk.waitForCounts(shown, all)


def expectContainer(desk, name):
    """While the list is open, only the title has the icon's name."""
    desk.program.wait(lambda: desk.program.mainForm().name.removesuffix(' - Glimmerpane').rstrip('*') == name,
                      f'{name} in the container; the title is {desk.program.mainForm().name}')


def expectSize(desk, size):
    desk.program.wait(lambda: desk.program.value('Icon size') == f'{size} x {size}', f'an icon of {size}')


def expectSaved(desk, name, picture):
    path = desk.session.path(name)
    desk.saveNew(path)
    for reader, readPicture in icons.READERS.items():
        assert readPicture(path) == picture, f'{reader} sees another picture in {name}'


def test_a_folder_is_listed_paged_and_clicked(session):
    folder = iconFolder(session, 60)
    write(session, 'icons/bad.ico', b'no icon')
    write(session, 'icons/two.ico', icons.icons((32, 4), (16, 4)))
    desk = ListDesk(session)
    desk.start()
    desk.program.command('ctrl+d')
    desk.chooseFolder(folder)
    desk.waitForCounts(48, 62)
    assert desk.program.value('Source', role='label') == folder
    assert len(desk.colorsIn(0)) > 2, 'the first icon is not visible'

    desk.click(4)
    expectContainer(desk, '004.ico')
    assert desk.isUp(LIST)
    desk.program.press('Page 2')
    desk.click(0)
    desk.waitForMark('Icon 13 of 62, 012.ico, 32 by 32')
    expectContainer(desk, '012.ico')
    desk.program.press('Next panel')
    desk.waitForCounts(14, 62)
    # The second page of the second panel has two cells.
    desk.program.press('Next page')
    desk.click(0)
    desk.program.answerBox(INVALID)
    assert desk.isUp(LIST)
    desk.program.press('Next panel')
    desk.waitForCounts(48, 62)
    desk.click(2, button=RIGHT_BUTTON)
    desk.waitForNoPanel(LIST)
    expectContainer(desk, '002.ico')
    desk.expectIcon(icons.motif(32, 4, 2), 'the icon of the right click')


def test_icons_of_programs_and_libraries_are_saved_as_they_are(session):
    large = write(session, 'tool.exe', libraries.portableExecutable(libraries.motifs(5)))
    small = write(session, 'old.dll', libraries.newExecutable(libraries.motifs(3)))
    desk = ListDesk(session)
    desk.start()
    openList(desk, large, 5, 5, LARGE)
    desk.click(3)
    expectContainer(desk, 'tool_4')
    expectSaved(desk, 'large.ico', icons.motif(32, 4, 3))
    desk.close(LIST)
    openList(desk, small, 3, 3, SMALL)
    desk.click(2, button=RIGHT_BUTTON)
    desk.waitForNoPanel(LIST)
    expectContainer(desk, 'old_3')
    expectSize(desk, 16)
    desk.expectIcon(icons.motif(16, 4, 2), 'the small icon')
    expectSaved(desk, 'small.ico', icons.motif(16, 4, 2))
    assert read(large) == libraries.portableExecutable(libraries.motifs(5)) and read(small) == libraries.newExecutable(libraries.motifs(3))


def test_alpha_of_a_library_is_kept(session):
    picture = icons.motif(32, 32)
    path = write(session, 'alpha.dll', libraries.portableExecutable([[icons.entryOf(picture, 32)]]))
    desk = ListDesk(session)
    desk.start()
    openList(desk, path, 1, 1, LARGE)
    desk.click(0, button=RIGHT_BUTTON)
    desk.waitForNoPanel(LIST)
    expectContainer(desk, 'alpha_1')
    saved = session.path('saved.ico')
    desk.saveNew(saved)
    (entry,) = icons.readEntries(saved)
    assert struct.unpack_from('<H', entry.image, 14) == (32,)
    assert entry.image == icons.image(picture, 32)


def test_images_of_a_scanned_file_are_listed_with_their_sizes(session):
    path = write(session, 'any.icl', b'some bytes' + icons.image(icons.motif(48, 8), 8) + b'()' + icons.image(icons.motif(16, 4), 4))
    desk = ListDesk(session)
    desk.start()
    openList(desk, path, 2, 2, 'Extract Icons From ICL File ....')
    desk.click(0)
    expectContainer(desk, 'any_1')
    desk.click(1, button=RIGHT_BUTTON)
    expectContainer(desk, 'any_2')
    expectSize(desk, 16)
    desk.expectIcon(icons.motif(16, 4), 'the second image')


def test_a_file_of_any_type_has_a_large_and_a_small_icon(session):
    path = write(session, 'notes.txt', b'words')
    desk = ListDesk(session)
    desk.start()
    openList(desk, path, 2, 2, 'Extract Icons Associated With Any File Type ....')
    for cell in (0, 1):
        assert len(desk.colorsIn(cell)) > 1, f'no icon in cell {cell}'
    desk.click(1)
    expectContainer(desk, 'notes_Extract')
    desk.click(0, button=RIGHT_BUTTON)
    expectContainer(desk, 'notes_Extract')
    expectSize(desk, 32)


def aniFile(frames):
    """An animated cursor of these pictures, each for six jiffies."""
    def chunk(tag, body):
        return struct.pack('<4sI', tag, len(body)) + body + bytes(len(body) % 2)
    header = struct.pack('<9I', 36, len(frames), len(frames), 0, 0, 0, 0, 6, 1)
    content = chunk(b'anih', header) + chunk(b'LIST', b'fram' + b''.join(chunk(b'icon', frame) for frame in frames))
    return chunk(b'RIFF', b'ACON' + content)


def test_frames_of_an_animated_cursor_are_extracted_and_saved_together(session):
    pictures = [icons.motif(32, 4, seed) for seed in range(5)]
    path = write(session, 'film.ani', aniFile([icons.cursor(picture, 4, 3, 4) for picture in pictures]))
    target = session.path('frames')
    os.mkdir(target)
    desk = ListDesk(session)
    desk.start()
    desk.program.command('ctrl+k')
    desk.program.answerFileDialog(path)
    desk.waitForCounts(5, 5)
    desk.click(2)
    expectContainer(desk, 'film_3')
    expectSaved(desk, 'frame.ico', pictures[2])

    desk.program.press('Save all frames as icon files (ico)')
    desk.chooseFolder(target, isEmpty=True)
    desk.program.answerBox('Frames will be saved as', 'alt+y')
    paths = [os.path.join(target, f'film_{number}.ico') for number in range(1, 6)]
    desk.program.wait(lambda: sorted(os.listdir(target)) == [os.path.basename(path) for path in paths], 'the files')
    desk.program.wait(lambda: desk.program.isEnabled(desk.program.need(ANOTHER)), 'the end of the save')
    assert [icons.readByPillow(path) for path in paths] == pictures


def test_the_list_works_by_keyboard_alone(session):
    folder = iconFolder(session, 60)
    desk = ListDesk(session)
    desk.start()
    desk.program.command('ctrl+d')
    desk.chooseFolder(folder)
    desk.waitForCounts(48, 60)
    desk.program.command('Home')
    desk.waitForMark('Icon 1 of 60, 000.ico, 32 by 32')
    desk.program.command('Down', 'Right')
    desk.waitForMark('Icon 5 of 60, 004.ico, 32 by 32')
    desk.program.command('Return')
    expectContainer(desk, '004.ico')
    assert desk.isUp(LIST)
    desk.program.command('Page_Down')
    desk.waitForMark('Icon 17 of 60, 016.ico, 32 by 32')
    desk.program.command('End')
    desk.waitForMark('Icon 60 of 60, 059.ico, 32 by 32')
    desk.waitForCounts(12, 60)
    desk.program.command('ctrl+Return')
    desk.waitForNoPanel(LIST)
    expectContainer(desk, '059.ico')

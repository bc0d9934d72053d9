"""Undo and Redo of regions and of saved icons, by mouse and keys, on the patchwork of test_drawing."""
import icons
from forms import read
from test_drawing import COLOR, copyOf, cutOut, flippedHorizontally, merge, openPatchwork, shifted

UNSAVED = 'The following is not saved yet:'


def save(artist):
    """Saves the icon over its file, and returns its path."""
    path = artist.session.path('patchwork.ico')
    before = read(path)
    artist.program.command('ctrl+s')
    artist.program.wait(lambda: read(path) != before, 'the icon to be saved')
    return path


def expectFile(path, picture):
    for reader, load in icons.READERS.items():
        assert load(path) == picture, f'{reader} reads other pixels'


def test_a_state_that_was_undone_after_saving_is_not_dropped(session):
    artist, original = openPatchwork(session)
    painted = copyOf(original)
    painted[5][5] = COLOR['red']
    assert painted != original
    artist.pick('red')
    artist.press('Paint')
    artist.click(5, 5)
    artist.expect(painted, 'a pixel painted')
    path = save(artist)
    expectFile(path, painted)

    artist.program.command('ctrl+z')
    artist.expect(original, 'the pixel undone')
    artist.program.menu('File', 'Exit')
    artist.program.answerBox(UNSAVED, 'alt+n')
    artist.expect(original, 'the icon, as the user stays')
    artist.program.command('ctrl+n')
    artist.answer('Save current icon to file?', 'Escape')

    # Another container and back.
    artist.press('Container 2', 'Container 1')
    artist.findEditingArea()
    artist.expect(original, 'the undone state in its container')
    expectFile(save(artist), original)
    artist.program.menu('File', 'Exit')
    assert artist.program.waitForEnd() == 0


def test_a_region_is_undone_and_redone_by_itself(session):
    artist, original = openPatchwork(session)
    artist.press('Region')
    artist.mark(4, 4, 11, 11)
    artist.moveRegion(6, 6, 9, 12)
    dragged = copyOf(original)
    merge(dragged, cutOut(dragged, 4, 4, 11, 11), 13, 16)
    artist.expect(dragged, 'a region dragged')

    # Undo while the region is still there.
    artist.program.command('ctrl+z')
    artist.expect(original, 'the drag undone')
    artist.program.command('ctrl+r')
    artist.expect(dragged, 'the drag redone')
    expectFile(save(artist), dragged)

    artist.mark(16, 2, 23, 5)
    artist.press('Flip icon/region horizontally')
    flipped = copyOf(dragged)
    merge(flipped, flippedHorizontally(cutOut(flipped, 16, 2, 23, 5)), 16, 2)
    artist.expect(flipped, 'a region flipped')
    artist.pick('red')
    artist.press('Paint')
    artist.click(1, 30)
    painted = copyOf(flipped)
    painted[30][1] = COLOR['red']
    artist.expect(painted, 'a pixel painted after it')
    artist.undoAllAndRedoAll([original, dragged, flipped, painted])

    artist.press('Set/unset shift image', 'Shift left', 'Shift down', 'Erase')
    moved = shifted(painted, -1, 1)
    artist.expect(moved, 'a shift that another tool ends')
    artist.program.command('ctrl+z')
    artist.expect(painted, 'the shift undone')
    artist.program.command('ctrl+r')
    artist.expect(moved, 'the shift redone')
    expectFile(save(artist), moved)

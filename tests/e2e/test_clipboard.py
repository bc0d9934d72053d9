"""Pictures of other programs on the clipboard, and programs that do not answer."""
import io

from PIL import Image

from clipboard import ClipboardOwner
from test_drawing import openPatchwork


def bitmap(width, height):
    picture = Image.new('RGB', (width, height))
    picture.putdata([(x % 256, y % 256, 99) for y in range(height) for x in range(width)])
    data = io.BytesIO()
    picture.save(data, 'BMP')
    return data.getvalue()


def canPaste(program):
    program.openMenu('Edit')
    enabled = program.isEnabled(program.need('Paste Opaque'))
    program.keys('Escape', 'Escape')
    program.waitForNoMenu()
    return enabled


def test_a_program_that_does_not_answer_keeps_nothing_waiting(session):
    with ClipboardOwner() as owner:
        program = session.start()
        assert program.mainForm()
        program.wait(owner.asked.is_set, 'the clipboard to be asked')
        program.command('ctrl+n')
        program.wait(lambda: program.value('Icon size') == '32 x 32', 'a new icon')
        assert not canPaste(program)
    with ClipboardOwner(bitmap(20, 20)):
        program.wait(lambda: canPaste(program), 'a picture to be pasted')


def test_pictures_of_other_programs_are_pasted(session):
    artist, original = openPatchwork(session)
    sizes = [(8, 8), (600, 400)]  # at once, and in pieces
    for width, height in sizes:
        with ClipboardOwner(bitmap(width, height)) as owner:
            artist.program.wait(owner.asked.is_set, 'the formats to be asked for')
            artist.program.command('ctrl+v')
            if width > len(original):
                artist.program.answerBox('Image size is of 600x400', 'alt+y')
            side = min(width, len(original))
            picture = [list(row) for row in original]
            for y in range(side):
                for x in range(side):
                    picture[y][x] = (x, y, 99)
            artist.expect(picture, f'a picture of {width} x {height} pixels pasted')
            artist.program.command('ctrl+z')
            artist.expect(original, 'the picture taken back')

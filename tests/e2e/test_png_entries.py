"""Icon files whose images are PNG pictures: opened, painted, replaced and saved by mouse, and read as Pillow reads them."""
import glob
import io
import os
import subprocess
import tempfile
import unittest

from PIL import Image

import icons
import readers
from forms import ALPHA_REMINDER, HEADER_DIFF, Desk, read, write

CORPUS = os.path.join(os.path.dirname(os.path.realpath(__file__)), *['..'] * 3, 'shared', 'corpus')
SIZES = (16, 24, 32, 48)
RED, RED_CELL = (255, 0, 0), (3, 0)
PNG_SIGNATURE = b'\x89PNG\r\n\x1a\n'


def picture(size, mode='RGBA'):
    """Every opacity occurs, and no two pictures are alike."""
    made = Image.new('RGBA', (size, size))
    made.putdata([(x * 5, y * 5, (x ^ y) * 4, (x * 9 + y * 7 + size) % 256) for y in range(size) for x in range(size)])
    return made.convert(mode)


def pngEntry(made, **stated):
    stream = io.BytesIO()
    made.save(stream, 'PNG')
    data = stream.getvalue()
    assert data.startswith(PNG_SIGNATURE)
    return icons.Entry(made.width, made.height, 0, 0, 1, 32, len(data), 0, data)._replace(**stated)


def allPng():
    """One directory entry states a wrong size and depth."""
    return [pngEntry(picture(size)) for size in SIZES[:3]] + [pngEntry(picture(48, 'RGB'), width=16, height=16, bits=4, colors=16)]


def test_of_a_file_of_png_pictures_one_is_painted_and_replaced_and_the_others_stay(session):
    path = write(session, 'all.ico', icons.fileOf(allPng()))
    before, content = icons.readEntries(path), read(path)
    desk = Desk(session)
    desk.openIcons(path)
    assert desk.refs() == ['Ref 1, 32 BPP, True-Color, 16 x 16', 'Ref 2, 32 BPP, True-Color, 24 x 24',
                           'Ref 3, 32 BPP, True-Color, 32 x 32', 'Ref 4, 24 BPP, True-Color, 48 x 48'], desk.refs()
    saveAlone(desk, before)
    desk.loadAndExit(3)
    desk.program.answerBox(ALPHA_REMINDER)
    desk.waitForIcon(32, path)
    desk.paint([(5, 7)], RED_CELL, RED, 32)
    desk.replaceIn(path, replace=True)
    desk.program.wait(lambda: read(path) != content, 'the replaced entry')
    desk.waitForPixel(5, 7, 32, RED)
    readers.assertKept(path, before, changed=[2])
    assertPainted(icons.readEntries(path), before)


def saveAlone(desk, before):
    """The entry with a wrong directory is saved as it is, byte for byte."""
    desk.pick(4)
    desk.program.press('Save Single')
    alone = desk.session.path('alone.ico')
    desk.program.chooseFile(alone)
    desk.program.wait(lambda: os.path.isfile(alone), 'the saved entry')
    assert read(alone) == icons.fileOf([before[3]])


def assertPainted(after, before):
    """The replaced entry is a bitmap with the picture's pixels, but for the painted one, which is opaque."""
    assert [entry.image for index, entry in enumerate(after) if index != 2] == \
        [entry.image for index, entry in enumerate(before) if index != 2]
    replaced = after[2]
    assert replaced[:2] == (32, 32) and replaced.bits == 32 and not replaced.image.startswith(PNG_SIGNATURE)
    wanted = picture(32).load()
    for y in range(32):
        for x in range(32):
            at = 40 + ((31 - y) * 32 + x) * 4
            blue, green, red, alpha = replaced.image[at:at + 4]
            color = wanted[x, y] if wanted[x, y][3] else (0, 0, 0, 0)
            if (x, y) == (5, 7):
                color = RED + (255,)
            assert (red, green, blue, alpha) == color, (x, y, (red, green, blue, alpha), color)


def test_a_png_picture_is_saved_as_a_bitmap(session):
    path = write(session, 'one.ico', icons.fileOf([pngEntry(picture(48, 'RGB'), width=32, height=32)]))
    desk = Desk(session)
    desk.openFile(path)
    desk.waitForIcon(48, path)
    assert desk.program.value('Headers') == ''
    desk.paint([(0, 0)], RED_CELL, RED, 48)
    content = read(path)
    desk.program.command('ctrl+s')
    desk.program.wait(lambda: read(path) != content, 'the saved file')
    wanted = readers.rgba(picture(48, 'RGB'))
    wanted[0][0] = RED + (255,)
    assert readers.picturesByPillow(path) == [wanted]
    assert not icons.readEntries(path)[0].image.startswith(PNG_SIGNATURE)


def test_the_header_form_shows_png_instead_of_a_bitmap_header(session):
    lying = icons.entryOf(icons.motif(32, 8), 8, colors=16)._replace(bits=4)
    path = write(session, 'lying.ico', icons.fileOf([lying] + allPng()))
    desk = Desk(session)
    desk.openIcons(path)
    desk.loadAndExit(1)
    desk.program.answerBox('Reminder: Header entries in the original file are discrepant.')
    desk.program.menu('Inquiry', 'Enquiry - Original Header Entry')
    desk.waitForForm(HEADER_DIFF)
    assert desk.refs()[4] == '5, 4-BPP, 16-Color, 16 x 16', desk.refs()
    rows = ('icon directory entry', 'bitmap header', 'actual image')
    table = lambda: [(desk.program.value(f'Colors per {row}'), desk.program.value(f'BPP per {row}')) for row in rows]
    for ref, wanted in ((5, [('16', '4'), ('PNG', '24'), ('True', '24')]), (3, [('True', '32'), ('PNG', '32'), ('True', '32')])):
        desk.program.press(f'{ref},', role='list item', startsWith=True)
        desk.program.wait(lambda: table() == wanted, f'the table of entry {ref}')


# Real files ------------------------------------------------------------------------------------------------------------

def samples(path, channels):
    content = read(path)
    data = content.split(b'\n', 3)[3]
    return [tuple(data[i:i + channels]) for i in range(0, len(data), channels)]


def assertAsPillow(folder, start, data, path):
    """What gpicon unpacked is what Pillow decodes: black and masked where the alpha is 0."""
    with Image.open(io.BytesIO(data)) as opened:
        pixels = list(opened.convert('RGBA').getdata())
    image, mask = samples(start + '.image.ppm', 3), samples(start + '.mask.pgm', 1)
    hasAlpha = os.path.isfile(start + '.alpha.pgm')
    alpha = samples(start + '.alpha.pgm', 1) if hasAlpha else [(255,)] * len(pixels)
    assert image == [p[:3] if p[3] else (0, 0, 0) for p in pixels], path
    assert mask == [(0,) if p[3] else (255,) for p in pixels], path
    assert alpha == [(p[3] or 255,) for p in pixels], path


def test_png_pictures_of_real_files_are_decoded_as_pillow_decodes_them(session):
    if not os.path.isdir(CORPUS):
        raise unittest.SkipTest(f'no corpus in {CORPUS}: no real file was tried')
    gpicon = os.path.join(os.path.dirname(session.executable), 'gpicon')
    compared = 0
    for path in sorted(glob.glob(os.path.join(CORPUS, 'ico', '*.ico')) + glob.glob(os.path.join(CORPUS, 'cur', '*.cur'))):
        content = read(path)
        if PNG_SIGNATURE not in content or content[:4] not in (b'\0\0\1\0', b'\0\0\2\0'):
            continue
        with tempfile.TemporaryDirectory(prefix='glimmerpane.') as folder:
            subprocess.run([gpicon, 'unpack', path, '-d', folder], capture_output=True, check=False)
            stem = os.path.join(folder, os.path.splitext(os.path.basename(path))[0])
            for index, entry in enumerate(icons.readEntries(path)):
                start = f'{stem}_{index}'
                if entry.image.startswith(PNG_SIGNATURE) and os.path.isfile(start + '.image.ppm'):
                    assertAsPillow(folder, start, entry.image, path)
                    compared += 1
    print(f'{compared} PNG pictures of icon sizes are the same as in Pillow')
    assert compared >= 4, compared

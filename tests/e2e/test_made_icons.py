"""Files of gpicon make are read by icotool, ImageMagick and Pillow with the pixels and alpha of the pictures that they are
made from."""
import os
import shutil
import subprocess
import unittest

from PIL import Image

import icons
import readers

# What each reader is asked with.
NEEDED = {'icotool': 'icotool', 'ImageMagick': 'convert', 'Pillow': 'python3'}


def drawn(size, colorAt):
    picture = Image.new('RGBA', size)
    picture.putdata([colorAt(x, y) for y in range(size[1]) for x in range(size[0])])
    return picture


def soft(side):
    return drawn((side, side), lambda x, y: ((x * 7) % 256, (y * 5) % 256, (x ^ y) % 256, 1 + (x * 11 + y * 3) % 255))


def holed(side, colors):
    """Opaque pixels of that many colours besides black, and transparent ones."""
    return drawn((side, side), lambda x, y: (0, 0, 0, 0) if (x + y) % 7 == 0 else
                 ((x + y * side) % colors % 16 * 15, (x + y * side) % colors // 16 * 15, 40, 255))


def opaque(width, height):
    return drawn((width, height), lambda x, y: (x * 5 % 256, y * 3 % 256, (x * y) % 256, 255))


def gpicon(session, *arguments):
    program = os.path.join(os.path.dirname(session.executable), 'gpicon')
    return subprocess.run([program, *arguments], check=True, capture_output=True, text=True).stdout


def make(session, name, pictures, *options):
    paths = []
    for index, picture in enumerate(pictures):
        paths.append(session.path(f'{name}-{index}.png'))
        picture.save(paths[-1])
    made = session.path(name)
    gpicon(session, 'make', made, *paths, *options)
    return made


def assertReadAs(path, pictures):
    """Checks each reader that is there."""
    expected = [readers.rgba(picture) for picture in pictures]
    missing = [who for who, program in NEEDED.items() if not shutil.which(program)]
    for who, read in readers.PICTURES.items():
        if who not in missing:
            readers.assertSame(read(path), expected, who, path)
    if missing:
        raise unittest.SkipTest(f'{", ".join(missing)} missing: {path} was not read by all')


def test_pictures_of_every_depth_and_encoding_are_read_alike(session):
    pictures = [soft(16), soft(48), soft(200), holed(32, 1), holed(32, 15), holed(48, 200), opaque(64, 64), opaque(65, 65),
                holed(24, 1)]
    path = make(session, 'depths.ico', pictures)
    assert [(entry.width, entry.bits) for entry in icons.readEntries(path)] == [
        (16, 32), (48, 32), (200, 32), (32, 1), (32, 4), (48, 8), (64, 24), (65, 24), (24, 1)]
    assertReadAs(path, pictures)


def test_every_reader_sees_the_scaled_sizes_that_unpack_writes(session):
    source = session.path('source.png')
    soft(250).save(source)
    for kind in ('box', 'lanczos'):
        path = session.path(kind + '.ico')
        gpicon(session, 'make', path, '--from', source, '--filter', kind)
        gpicon(session, 'unpack', '--png', path, '-d', session.path(kind))
        unpacked = [Image.open(session.path(f'{kind}/{kind}_{index}.png')) for index in range(7)]
        assert [picture.size[0] for picture in unpacked] == [16, 24, 32, 48, 64, 128, 256]
        assertReadAs(path, unpacked)


def test_an_icon_without_png_is_read_as_the_same_pictures(session):
    pictures = [soft(256), opaque(128, 128)]
    path = make(session, 'bitmaps.ico', pictures, '--png-above', '256')
    assertReadAs(path, pictures)

"""What independent programs (icotool, ImageMagick and Pillow) read from files of several icons and from cursors. They
must agree with each other and with the expected content."""
import glob
import os
import re
import subprocess
import tempfile

from PIL import Image

import icons

LISTED = re.compile(r'--(icon|cursor) .*--width=(\d+) --height=(\d+) --bit-depth=(\d+)(?:.*--hotspot-x=(\d+) --hotspot-y=(\d+))?')


def quads(picture):
    """A picture with the opacity of every pixel, None for transparent pixels."""
    full = lambda pixel: tuple(pixel) + (255,) if pixel and len(pixel) == 3 else pixel
    return [[full(pixel) for pixel in row] for row in picture]


def rgba(picture):
    """The same for a picture of Pillow."""
    pixels = picture.convert('RGBA').load()
    return [[pixels[x, y] if pixels[x, y][3] else None for x in range(picture.width)] for y in range(picture.height)]


def open32(path):
    with Image.open(path) as picture:
        return rgba(picture)


def listByIcotool(path):
    """(kind, width, height, bits, hot spot) per entry; the hot spot is None for icons."""
    done = subprocess.run(['icotool', '-l', path], check=True, capture_output=True, text=True, errors='replace')
    entries = []
    for kind, width, height, bits, x, y in LISTED.findall(done.stdout):
        entries.append((kind, int(width), int(height), int(bits), (int(x), int(y)) if x else None))
    return entries


def sizesByImageMagick(path, kind):
    done = subprocess.run(['/usr/bin/identify', '-format', '%wx%h\n', f'{kind}:{path}'], check=True, capture_output=True, text=True)
    return [tuple(int(number) for number in line.split('x')) for line in done.stdout.split()]


def inDirectoryOrder(path, file):
    """Indices of Pillow's entries, which it sorts by size."""
    offsets = [entry.offset for entry in icons.readEntries(path)]
    return sorted(range(len(file.ico.entry)), key=lambda index: offsets.index(file.ico.entry[index]['offset']))


def entriesByPillow(path):
    """(width, height, bits) in directory order."""
    with Image.open(path) as file:
        entries = [file.ico.entry[index] for index in inDirectoryOrder(path, file)]
        return [(entry['width'], entry['height'], entry['color_depth']) for entry in entries]


def picturesByPillow(path):
    with Image.open(path) as file:
        return [rgba(file.ico.frame(index)) for index in inDirectoryOrder(path, file)]


def picturesInFolder(folder, number):
    paths = glob.glob(os.path.join(folder, '*.png'))
    return [open32(path) for path in sorted(paths, key=number)]


def picturesByImageMagick(path, kind='ico'):
    with tempfile.TemporaryDirectory(prefix='glimmerpane.') as folder:
        subprocess.run(['/usr/bin/convert', f'{kind}:{path}', 'png32:' + os.path.join(folder, 'p-%03d.png')], check=True)
        return picturesInFolder(folder, number=lambda name: name)


def picturesByIcotool(path):
    with tempfile.TemporaryDirectory(prefix='glimmerpane.') as folder:
        subprocess.run(['icotool', '-x', '-o', folder, path], check=True, capture_output=True)
        return picturesInFolder(folder, number=lambda name: int(re.search(r'_(\d+)_\d+x\d+x\d+\.png$', name)[1]))


PICTURES = {'icotool': picturesByIcotool, 'ImageMagick': picturesByImageMagick, 'Pillow': picturesByPillow}


def assertSame(got, wanted, who, path):
    assert len(got) == len(wanted), f'{who} reads {len(got)} pictures in {path}, not {len(wanted)}'
    for index, (one, other) in enumerate(zip(got, wanted)):
        if one != other:
            wrong = [(x, y, a, b) for y, (row, like) in enumerate(zip(one, other)) for x, (a, b) in enumerate(zip(row, like)) if a != b]
            raise AssertionError(f'{who}, picture {index} of {path}: {len(wrong)} pixels differ (x, y, read, wanted): {wrong[:6]}')


def assertIcons(path, wanted):
    """Checks that every reader finds these entries, each (picture, bits), in this order."""
    sizes = [(len(picture[0]), len(picture), bits) for picture, bits in wanted]
    stated = [(entry.width, entry.height, entry.bits) for entry in icons.readEntries(path)]
    assert stated == sizes, f'the directory of {path} states {stated}, not {sizes}'
    listed = listByIcotool(path)
    assert listed == [('icon', *size, None) for size in sizes], f'icotool lists {listed}'
    assert sizesByImageMagick(path, 'ico') == [size[:2] for size in sizes]
    assert entriesByPillow(path) == sizes
    pictures = [quads(picture) for picture, _ in wanted]
    for who, read in PICTURES.items():
        assertSame(read(path), pictures, who, path)


def assertCursor(path, picture, bits, hotspot):
    """The same for a cursor. Pillow does not read the mask, so it sees black where the cursor is transparent. A cursor
    of 32 bits states the byte count of 24 bits, which the others may refuse."""
    entry, = icons.readEntries(path)
    assert (entry.planes, entry.bits) == hotspot, entry[:8]
    assert (entry.width, entry.height) == (len(picture[0]), len(picture))
    if bits == 32:
        assertSame([open32(path)], [quads(picture)], 'Pillow', path)
        return
    opaque = [[pixel or (0, 0, 0, 255) for pixel in row] for row in quads(picture)]
    assertSame([open32(path)], [opaque], 'Pillow', path)
    listed = listByIcotool(path)
    assert listed == [('cursor', entry.width, entry.height, bits, hotspot)], f'icotool lists {listed}'
    assert sizesByImageMagick(path, 'cur') == [(entry.width, entry.height)]
    assertSame(picturesByIcotool(path), [quads(picture)], 'icotool', path)
    assertSame(picturesByImageMagick(path, 'cur'), [quads(picture)], 'ImageMagick', path)


def assertKept(path, before, changed=()):
    """Checks that the images of the former file are unchanged, except for those at `changed`."""
    after = icons.readEntries(path)
    assert len(after) == len(before)
    for index, (one, other) in enumerate(zip(after, before)):
        if index not in changed:
            assert one.image == other.image and one[:6] == other[:6], f'entry {index} of {path} has changed'

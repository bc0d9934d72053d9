"""Icons and cursors built byte by byte. A picture is a list of rows; a pixel is (red, green, blue), with its opacity as
fourth number in pictures of 32 bits, or None if it is transparent."""
import collections
import os
import struct
import subprocess
import tempfile

from PIL import Image

# The sixteen standard colours in the order of their palette.
COLORS_16 = [(0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128), (0, 128, 128), (192, 192, 192),
             (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0), (0, 0, 255), (255, 0, 255), (0, 255, 255), (255, 255, 255)]
COLORS_256 = [(0, 0, 0), (255, 255, 255)] + [(i, 255 - i, i * 7 % 256) for i in range(2, 256)]
PALETTES = {1: [(0, 0, 0), (255, 255, 255)], 4: COLORS_16, 8: COLORS_256}
COLOR_COUNTS = {1: 2, 4: 16}  # of directory entries; 0 for others
ICON, CURSOR = 1, 2

# The fields of a directory entry, and the bytes of its image. Cursors have their hot spot in `planes` and `bits`.
Entry = collections.namedtuple('Entry', 'width height colors reserved planes bits size offset image')
DIRECTORY_ENTRY = struct.Struct('<BBBBHHII')
DIRECTORY_BYTES = 6


def padded(row):
    return row + bytes(-len(row) % 4)


def packBits(values, bits):
    """Values of `bits` bits each, the first one highest, as a row of a bitmap."""
    number = 0
    for value in values:
        number = number << bits | value
    length = -(-len(values) * bits // 8)
    return padded((number << (length * 8 - len(values) * bits)).to_bytes(length, 'big'))


# Building ------------------------------------------------------------------------------------------------------------

def motif(size, bits, seed=0):
    """A different picture for each size, depth and seed, transparent in places. With 8 bits it has more than the
    sixteen colours, with 24 bits more than 256."""
    def pixel(x, y):
        number = x * x + 3 * y + x * y // 4 + seed
        if (x * 7 + y * 3 + seed) % 11 == 0 or x + y < 3:
            return None
        if bits in PALETTES:
            return PALETTES[bits][number % len(PALETTES[bits])]
        color = (x * 5 % 256, y * 5 % 256, number * 3 % 256)
        return color if bits == 24 else color + (40 + number * 5 % 216,)
    return [[pixel(x, y) for x in range(size)] for y in range(size)]


def colorRow(row, bits, palette):
    if palette:
        return packBits([palette.index(p or (0, 0, 0)) for p in row], bits)
    black = (0, 0, 0, 0)[:bits // 8]
    return padded(b''.join(bytes((p[2], p[1], p[0])) + bytes(p[3:]) for p in [pixel or black for pixel in row]))


def image(picture, bits, palette=None):
    """The bytes of a picture in an icon file; a palette has 2 ^ bits colours."""
    palette = palette or PALETTES.get(bits, [])
    width, height = len(picture[0]), len(picture)
    header = struct.pack('<IiiHHIIiiII', 40, width, 2 * height, 1, bits, 0, 0, 0, 0, 0, 0)
    table = b''.join(bytes((b, g, r, 0)) for r, g, b in palette)
    colors = b''.join(colorRow(row, bits, palette) for row in reversed(picture))
    mask = b''.join(packBits([int(p is None) for p in row], 1) for row in reversed(picture))
    return header + table + colors + mask


def entryOf(picture, bits, palette=None, **lies):
    """A directory entry with its picture; `lies` are fields with wrong values."""
    data = image(picture, bits, palette)
    entry = Entry(len(picture[0]), len(picture), COLOR_COUNTS.get(bits, 0), 0, 1, bits, len(data), 0, data)
    return entry._replace(**lies)


def fileOf(entries, kind=ICON):
    """The bytes of a file with these entries, images in directory order."""
    offset = DIRECTORY_BYTES + DIRECTORY_ENTRY.size * len(entries)
    directory, images = struct.pack('<HHH', 0, kind, len(entries)), b''
    for entry in entries:
        directory += DIRECTORY_ENTRY.pack(*entry[:7], offset + len(images))
        images += entry.image
    return directory + images


def icons(*sizesAndBits, seed=0):
    """A file of several motifs, given as sizes and bits: icons((16, 4), (32, 8))."""
    return fileOf([entryOf(motif(size, bits, seed), bits) for size, bits in sizesAndBits])


def icon16(picture):
    """The bytes of an icon file with one picture of 16 colours."""
    return fileOf([entryOf(picture, 4)])


def cursor(picture, bits, x, y):
    return fileOf([entryOf(picture, bits)._replace(planes=x, bits=y)], CURSOR)


# Reading -------------------------------------------------------------------------------------------------------------

def readEntries(path):
    """The directory of a file of icons or cursors, each entry with the bytes of its image."""
    with open(path, 'rb') as file:
        content = file.read()
    _, _, count = struct.unpack_from('<HHH', content)
    entries = []
    for index in range(count):
        fields = DIRECTORY_ENTRY.unpack_from(content, DIRECTORY_BYTES + index * DIRECTORY_ENTRY.size)
        entries.append(Entry(*fields, content[fields[7]:fields[7] + fields[6]]))
    return entries


def fromRgba(width, data):
    pixels = [tuple(data[i:i + 4]) for i in range(0, len(data), 4)]
    picture = [p[:3] if p[3] else None for p in pixels]
    return [picture[i:i + width] for i in range(0, len(picture), width)]


def readByPillow(path):
    with Image.open(path) as picture:
        return fromRgba(picture.width, picture.convert('RGBA').tobytes())


def readByImageMagick(path):
    """Names the program of Debian, because the path may contain another one of that name."""
    with tempfile.TemporaryDirectory(prefix='glimmerpane.') as folder:
        picture = os.path.join(folder, 'picture.png')
        subprocess.run(['/usr/bin/convert', 'ico:' + path + '[0]', 'png32:' + picture], check=True)
        return readByPillow(picture)


def readByIcotool(path):
    with tempfile.TemporaryDirectory(prefix='glimmerpane.') as folder:
        subprocess.run(['icotool', '-x', '-i', '1', '-o', folder, path], check=True)
        names = os.listdir(folder)
        assert len(names) == 1, names
        return readByPillow(os.path.join(folder, names[0]))


READERS = {'Pillow': readByPillow, 'ImageMagick': readByImageMagick, 'icotool': readByIcotool}

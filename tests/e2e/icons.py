"""Icons built byte by byte, and what independent programs read in an icon file. A picture is a list of rows, a pixel is
(red, green, blue) or None where it is transparent."""
import os
import struct
import subprocess
import tempfile

from PIL import Image

# The platform's sixteen colours in the order of their palette.
COLORS_16 = [(0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128), (0, 128, 128), (192, 192, 192),
             (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0), (0, 0, 255), (255, 0, 255), (0, 255, 255), (255, 255, 255)]


def padded(row):
    return row + bytes(-len(row) % 4)


def packBits(values, bits):
    """Values of `bits` bits each, the first one highest, as a row of a bitmap."""
    number = 0
    for value in values:
        number = number << bits | value
    length = -(-len(values) * bits // 8)
    return padded((number << (length * 8 - len(values) * bits)).to_bytes(length, 'big'))


def icon16(picture):
    """The bytes of an icon file with one picture of 16 colours."""
    size = len(picture)
    palette = b''.join(bytes((b, g, r, 0)) for r, g, b in COLORS_16)
    colors = b''.join(packBits([COLORS_16.index(p or (0, 0, 0)) for p in row], 4) for row in reversed(picture))
    mask = b''.join(packBits([int(p is None) for p in row], 1) for row in reversed(picture))
    header = struct.pack('<IiiHHIIiiII', 40, size, 2 * size, 1, 4, 0, 0, 0, 0, 0, 0)
    image = header + palette + colors + mask
    return struct.pack('<HHH', 0, 1, 1) + struct.pack('<BBBBHHII', size, size, 16, 0, 1, 4, len(image), 22) + image


def fromRgba(width, data):
    pixels = [tuple(data[i:i + 4]) for i in range(0, len(data), 4)]
    picture = [p[:3] if p[3] else None for p in pixels]
    return [picture[i:i + width] for i in range(0, len(picture), width)]


def readByPillow(path):
    with Image.open(path) as image:
        return fromRgba(image.width, image.convert('RGBA').tobytes())


def readByImageMagick(path):
    """Debian's own program is named, as another one of that name may stand before it in the path."""
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

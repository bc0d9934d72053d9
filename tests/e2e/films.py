"""Animated cursor files, read chunk by chunk. A frame's picture is as in icons.py: rows of (red, green, blue), None where
it is transparent."""
import collections
import io
import struct

from PIL import Image

CHUNK = struct.Struct('<4sI')
HEADER = struct.Struct('<9I')
LIST_TYPE_BYTES = 4
HOTSPOT_OFFSET = 10  # in the file of a frame
SIDE = 32
MASK_ROW_BYTES = SIDE // 8
ICON_FORMAT = 1  # flag: the frames are files of icons or cursors

Film = collections.namedtuple('Film', 'jiffies hotspots pictures title artist')


def chunks(content):
    """(tag, body) of each chunk in `content`."""
    at = 0
    while at < len(content):
        tag, size = CHUNK.unpack_from(content, at)
        at += CHUNK.size
        assert at + size <= len(content), f'chunk {tag} is longer than its list'
        yield tag, content[at:at + size]
        at += size + size % 2


def lists(content):
    """The lists among the chunks, by their type."""
    return {body[:LIST_TYPE_BYTES]: list(chunks(body[LIST_TYPE_BYTES:])) for tag, body in content if tag == b'LIST'}


def text(body):
    return body.split(b'\0')[0].decode('ascii')


def pictureOf(frame):
    """Colours by Pillow, transparent pixels by the mask, which is at the end of the file, bottom row first."""
    with Image.open(io.BytesIO(frame)) as image:
        assert (image.format, image.size) == ('CUR', (SIDE, SIDE))
        colors = image.convert('RGB').load()
    mask = frame[-MASK_ROW_BYTES * SIDE:]

    def isClear(x, y):
        return mask[(SIDE - 1 - y) * MASK_ROW_BYTES + x // 8] >> (7 - x % 8) & 1

    return [[None if isClear(x, y) else colors[x, y] for x in range(SIDE)] for y in range(SIDE)]


def readFilm(path):
    with open(path, 'rb') as file:
        content = file.read()
    tag, size = CHUNK.unpack_from(content)
    assert (tag, size, content[8:12]) == (b'RIFF', len(content), b'ACON')
    top = list(chunks(content[12:]))
    single, inLists = dict(top), lists(top)
    header = HEADER.unpack(single[b'anih'])
    frames = [body for tag, body in inLists[b'fram'] if tag == b'icon']
    count = len(frames)
    assert header == (HEADER.size, count, count, 0, 0, 0, 0, 10, ICON_FORMAT), header
    info = dict(inLists[b'INFO'])
    return Film(jiffies=list(struct.unpack(f'<{count}I', single[b'rate'])),
                hotspots=[struct.unpack_from('<HH', frame, HOTSPOT_OFFSET) for frame in frames],
                pictures=[pictureOf(frame) for frame in frames], title=text(info[b'INAM']), artist=text(info[b'IART']))

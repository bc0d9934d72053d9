"""Cursors that gpicon makes for X11 and Wayland: loaded by libXcursor, shown as the pointer, and those of themes on their
way to files of Windows and back."""
import os
import struct
import subprocess
import unittest

import icons
from forms import write
from session import waitUntil
from xcursors import Image, Pointer, readFile

THEMES = ('DMZ-Black', 'DMZ-White', 'redglass', 'whiteglass', 'handhelds')
# Of these, the nominal size is the longer side of each image, which is all that files of Windows state.
KEEPING_NOMINAL_SIZES = ('DMZ-Black', 'DMZ-White')
STILL_MS = 50


def gpicon(session, *arguments):
    program = os.path.join(os.path.dirname(session.executable), 'gpicon')
    done = subprocess.run([program, *arguments], capture_output=True, text=True)
    assert (done.returncode, done.stdout + done.stderr) == (0, ''), done.stderr


def convert(session, content):
    """The path of the X cursor file that is made from these bytes."""
    made = session.path('made')
    gpicon(session, 'xcursor', write(session, 'made.from', content), '-o', made)
    return made


def product(channel, alpha):
    """Rounded to the nearest."""
    return (2 * channel * alpha + 255) // 510


def argb(pixel):
    if pixel is None:
        return 0
    red, green, blue, alpha = (*pixel, 255)[:4]
    return alpha << 24 | product(red, alpha) << 16 | product(green, alpha) << 8 | product(blue, alpha)


def imageOf(picture, x, y, delay):
    pixels = tuple(argb(pixel) for row in picture for pixel in row)
    return Image(len(picture[0]), len(picture), x, y, delay, pixels)


def cursorFile(*images):
    """A cursor file of (picture, bits, hot spot x, hot spot y)."""
    return icons.fileOf([icons.entryOf(picture, bits)._replace(planes=x, bits=y) for picture, bits, x, y in images], icons.CURSOR)


def chunk(tag, content):
    return tag + struct.pack('<I', len(content)) + content + bytes(len(content) % 2)


def aniFile(frames, rates, sequence):
    header = struct.pack('<9I', 36, len(frames), len(sequence), 0, 0, 0, 0, 10, 3)
    body = b'ACON' + chunk(b'anih', header) + chunk(b'rate', struct.pack(f'<{len(rates)}I', *rates))
    body += chunk(b'seq ', struct.pack(f'<{len(sequence)}I', *sequence))
    return chunk(b'RIFF', body + chunk(b'LIST', b'fram' + b''.join(chunk(b'icon', frame) for frame in frames)))


def wide(bits):
    """A picture that is not square."""
    return icons.motif(20, bits)[:13]


STILL = ((icons.motif(32, 32), 32, 31, 0), (icons.motif(48, 24), 24, 5, 47), (wide(4), 4, 19, 12), (icons.motif(64, 8), 8, 1, 2))


def test_libxcursor_loads_every_image_of_a_still_cursor(session):
    made = convert(session, cursorFile(*STILL))
    with Pointer() as pointer:
        for picture, _, x, y in STILL:
            longer = max(len(picture), len(picture[0]))
            assert pointer.load(made, longer) == ([imageOf(picture, x, y, STILL_MS)], longer), longer
        assert pointer.load(made, 25)[1] == 20
        assert pointer.load(made, 1000)[1] == 64


def test_the_pointer_has_the_pixels_of_the_cursor(session):
    made = convert(session, cursorFile(*STILL))
    with Pointer() as pointer:
        for picture, _, x, y in STILL:
            pointer.show(made, max(len(picture), len(picture[0])))
            assert pointer.shown() == imageOf(picture, x, y, None)


def movingFrames():
    """Three frames, the last one without the large size."""
    def frame(seed):
        return [(icons.motif(24, 32, seed), 32, seed, 3), (icons.motif(40, 24, seed), 24, 7, seed)]
    return [frame(1), frame(2), frame(3)[:1]]


def test_libxcursor_plays_the_steps_of_an_animated_cursor(session):
    frames, sequence = movingFrames(), [2, 0, 1, 0]
    made = convert(session, aniFile([cursorFile(*frame) for frame in frames], [60, 1, 1, 1], sequence))
    # One jiffy is 16 2/3 milliseconds; what is lost by rounding is made up for by the next step.
    delays = [1000, 17, 16, 17]
    with Pointer() as pointer:
        for size, index in ((24, 0), (40, 1)):
            steps = [(frames[frame][index], delay) for frame, delay in zip(sequence, delays) if index < len(frames[frame])]
            wanted = [imageOf(picture, x, y, delay) for (picture, _, x, y), delay in steps]
            assert pointer.load(made, size) == (wanted, size), size


def test_the_pointer_plays_the_animated_cursor(session):
    frames = [[image] for image, *_ in movingFrames()]
    made = convert(session, aniFile([cursorFile(*frame) for frame in frames], [6, 6, 6], [0, 1, 2]))
    wanted = {imageOf(picture, x, y, None) for [(picture, _, x, y)] in frames}
    seen = set()

    def isComplete():
        seen.add(pointer.shown())
        return wanted <= seen

    with Pointer() as pointer:
        pointer.show(made, 24)
        # Until the first step ends, the server reports an empty image for the animation as a whole.
        waitUntil(isComplete, 'all three frames', poll=0.01)
        assert {image[:2] for image in seen - wanted} <= {(1, 1)}


def cursorsOf(theme):
    """The files of an installed theme that are no links."""
    folder = os.path.join('/usr/share/icons', theme, 'cursors')
    if not os.path.isdir(folder):
        raise unittest.SkipTest(f'no theme in {folder}: no real cursor was tried')
    paths = [os.path.join(folder, name) for name in sorted(os.listdir(folder))]
    return [path for path in paths if not os.path.islink(path)]


def test_the_cursors_of_themes_come_back_the_same(session):
    moving = 0
    for theme in THEMES:
        for path in cursorsOf(theme):
            former = readFile(path)
            moves = any(len(images) > 1 for images in former.values())
            between = session.path('between.ani' if moves else 'between.cur')
            gpicon(session, 'unxcursor', path, '-o', between)
            gpicon(session, 'xcursor', between, '-o', session.path('back'))
            back = readFile(session.path('back'))
            if theme in KEEPING_NOMINAL_SIZES:
                assert back == former, path
            assert sorted(back.values()) == sorted(former.values()), path
            moving += moves
    assert moving == 6, moving

"""X cursor files as others see them: their bytes, what libXcursor loads of them, and the pointer that the X server
shows. An image is (width, height, hot spot x, hot spot y, delay in milliseconds, pixels), pixels as numbers ARGB with
colours multiplied by alpha."""
import collections
import ctypes
import struct

from ctypes import POINTER, byref, c_char_p, c_int, c_short, c_uint, c_ulong, c_ushort, c_void_p

IMAGE_TYPE = 0xFFFD0002
GRAB_SUCCESS = 0

Image = collections.namedtuple('Image', 'width height x y delay pixels')


def readFile(path):
    """The images of a file by nominal size, in the order of play."""
    with open(path, 'rb') as file:
        content = file.read()
    magic, headerSize, _, count = struct.unpack_from('<4sIII', content)
    assert magic == b'Xcur'
    sizes = {}
    for index in range(count):
        kind, nominal, position = struct.unpack_from('<III', content, headerSize + 12 * index)
        if kind == IMAGE_TYPE:
            fields = struct.unpack_from('<9I', content, position)
            pixels = struct.unpack_from(f'<{fields[4] * fields[5]}I', content, position + fields[0])
            sizes.setdefault(nominal, []).append(Image(*fields[4:], pixels))
    return sizes


class LoadedImage(ctypes.Structure):
    _fields_ = [(name, c_uint) for name in ('version', 'size', 'width', 'height', 'x', 'y', 'delay')] + [('pixels', POINTER(c_uint))]


class LoadedImages(ctypes.Structure):
    _fields_ = [('count', c_int), ('images', POINTER(POINTER(LoadedImage))), ('name', c_char_p)]


class ShownCursor(ctypes.Structure):
    _fields_ = [('rootX', c_short), ('rootY', c_short), ('width', c_ushort), ('height', c_ushort), ('x', c_ushort),
                ('y', c_ushort), ('serial', c_ulong), ('pixels', POINTER(c_ulong)), ('atom', c_ulong), ('name', c_char_p)]


def library(name, **functions):
    """A library with the result and argument types of its functions."""
    loaded = ctypes.CDLL(name)
    for function, (result, *arguments) in functions.items():
        getattr(loaded, function).restype = result
        getattr(loaded, function).argtypes = arguments
    return loaded


class Pointer:
    """A connection to the X server of the test, with the libraries that show cursors."""

    def __init__(self):
        self.x11 = library('libX11.so.6', XOpenDisplay=(c_void_p, c_char_p), XDefaultRootWindow=(c_ulong, c_void_p),
                           XSync=(c_int, c_void_p, c_int), XFree=(c_int, c_void_p), XCloseDisplay=(c_int, c_void_p),
                           XGrabPointer=(c_int, c_void_p, c_ulong, c_int, c_uint, c_int, c_int, c_ulong, c_ulong, c_ulong))
        self.xcursor = library('libXcursor.so.1', XcursorFilenameLoadImages=(POINTER(LoadedImages), c_char_p, c_int),
                               XcursorImagesLoadCursor=(c_ulong, c_void_p, POINTER(LoadedImages)),
                               XcursorImagesDestroy=(None, POINTER(LoadedImages)))
        self.xfixes = library('libXfixes.so.3', XFixesQueryExtension=(c_int, c_void_p, POINTER(c_int), POINTER(c_int)),
                              XFixesGetCursorImage=(POINTER(ShownCursor), c_void_p))
        self.display = self.x11.XOpenDisplay(None)
        assert self.display and self.xfixes.XFixesQueryExtension(self.display, byref(c_int()), byref(c_int()))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.x11.XCloseDisplay(self.display)

    def load(self, path, size):
        """(images, nominal size) that libXcursor loads for a size."""
        loaded = self.xcursor.XcursorFilenameLoadImages(path.encode(), size)
        assert loaded, f'libXcursor does not load {path}'
        images = [loaded.contents.images[index].contents for index in range(loaded.contents.count)]
        found = [Image(i.width, i.height, i.x, i.y, i.delay, tuple(i.pixels[:i.width * i.height])) for i in images]
        nominal = images[0].size
        self.xcursor.XcursorImagesDestroy(loaded)
        return found, nominal

    def show(self, path, size):
        """Makes the file the pointer, whatever is below it."""
        loaded = self.xcursor.XcursorFilenameLoadImages(path.encode(), size)
        cursor = self.xcursor.XcursorImagesLoadCursor(self.display, loaded)
        self.xcursor.XcursorImagesDestroy(loaded)
        root = self.x11.XDefaultRootWindow(self.display)
        asynchronous, currentTime = 1, 0
        grabbed = self.x11.XGrabPointer(self.display, root, 0, 0, asynchronous, asynchronous, 0, cursor, currentTime)
        assert grabbed == GRAB_SUCCESS, grabbed
        self.x11.XSync(self.display, 0)

    def shown(self):
        """The image that the X server shows now, without a delay."""
        found = self.xfixes.XFixesGetCursorImage(self.display)
        cursor = found.contents
        pixels = tuple(pixel & 0xFFFFFFFF for pixel in cursor.pixels[:cursor.width * cursor.height])
        image = Image(cursor.width, cursor.height, cursor.x, cursor.y, None, pixels)
        self.x11.XFree(ctypes.cast(found, c_void_p))
        return image

"""Access to an X display through libX11, fast enough to see the first frame of a window."""
import ctypes
import ctypes.util

X = ctypes.CDLL(ctypes.util.find_library('X11') or 'libX11.so.6')
VIEWABLE = 2
Z_PIXMAP = 2
ALL_PLANES = ctypes.c_ulong(-1)
WORDS_OF_A_LIST = 1024


class WindowAttributes(ctypes.Structure):
    _fields_ = [('x', ctypes.c_int), ('y', ctypes.c_int), ('width', ctypes.c_int), ('height', ctypes.c_int),
                ('border_width', ctypes.c_int), ('depth', ctypes.c_int), ('visual', ctypes.c_void_p), ('root', ctypes.c_ulong),
                ('c_class', ctypes.c_int), ('bit_gravity', ctypes.c_int), ('win_gravity', ctypes.c_int),
                ('backing_store', ctypes.c_int), ('backing_planes', ctypes.c_ulong), ('backing_pixel', ctypes.c_ulong),
                ('save_under', ctypes.c_int), ('colormap', ctypes.c_ulong), ('map_installed', ctypes.c_int),
                ('map_state', ctypes.c_int), ('all_event_masks', ctypes.c_long), ('your_event_mask', ctypes.c_long),
                ('do_not_propagate_mask', ctypes.c_long), ('override_redirect', ctypes.c_int), ('screen', ctypes.c_void_p)]


class Image(ctypes.Structure):
    """The first members of XImage, up to the last one used here."""
    _fields_ = [('width', ctypes.c_int), ('height', ctypes.c_int), ('xoffset', ctypes.c_int), ('format', ctypes.c_int),
                ('data', ctypes.POINTER(ctypes.c_char)), ('byte_order', ctypes.c_int), ('bitmap_unit', ctypes.c_int),
                ('bitmap_bit_order', ctypes.c_int), ('bitmap_pad', ctypes.c_int), ('depth', ctypes.c_int),
                ('bytes_per_line', ctypes.c_int), ('bits_per_pixel', ctypes.c_int)]


ErrorHandler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
X.XOpenDisplay.restype = ctypes.c_void_p
X.XDefaultRootWindow.restype = ctypes.c_ulong
X.XInternAtom.restype = ctypes.c_ulong
X.XGetImage.restype = ctypes.POINTER(Image)
X.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
X.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
X.XGetWindowAttributes.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.POINTER(WindowAttributes)]
X.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.c_uint, ctypes.c_uint,
                        ctypes.c_ulong, ctypes.c_int]
X.XDestroyImage.argtypes = [ctypes.POINTER(Image)]
X.XFree.argtypes = [ctypes.c_void_p]
X.XGetWindowProperty.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_ulong, ctypes.c_long, ctypes.c_long, ctypes.c_int,
                                 ctypes.c_ulong] + [ctypes.c_void_p] * 5


class Screen:
    def __init__(self, name):
        self.display = X.XOpenDisplay(name.encode())
        if not self.display:
            raise RuntimeError(f'no X display {name}')
        self.root = X.XDefaultRootWindow(self.display)
        # A window may disappear between two requests; the default handler would end this program.
        self.ignore = ErrorHandler(lambda display, event: 0)
        X.XSetErrorHandler(self.ignore)
        self.clientList = self.atom('_NET_CLIENT_LIST')
        self.processId = self.atom('_NET_WM_PID')

    def atom(self, name):
        return X.XInternAtom(self.display, name.encode(), 0)

    def numbers(self, window, atom):
        kind, form, count, after = ctypes.c_ulong(), ctypes.c_int(), ctypes.c_ulong(), ctypes.c_ulong()
        data = ctypes.POINTER(ctypes.c_ulong)()
        X.XGetWindowProperty(self.display, window, atom, 0, WORDS_OF_A_LIST, 0, 0, ctypes.byref(kind), ctypes.byref(form),
                             ctypes.byref(count), ctypes.byref(after), ctypes.byref(data))
        found = [data[i] for i in range(count.value)] if data else []
        if data:
            X.XFree(data)
        return found

    def windowsOf(self, pid):
        return [w for w in self.numbers(self.root, self.clientList) if self.numbers(w, self.processId)[:1] == [pid]]

    def sizeOf(self, window):
        """(width, height) of a window that is on the screen, otherwise (0, 0)."""
        attributes = WindowAttributes()
        if not X.XGetWindowAttributes(self.display, window, ctypes.byref(attributes)) or attributes.map_state != VIEWABLE:
            return 0, 0
        return attributes.width, attributes.height

    def colors(self, window, width, height, step):
        """The number of colours in every `step`-th row of a window."""
        image = X.XGetImage(self.display, window, 0, 0, width, height, ALL_PLANES, Z_PIXMAP)
        if not image:
            return 0
        line = image.contents.bytes_per_line
        data = ctypes.string_at(image.contents.data, line * height)
        X.XDestroyImage(image)
        found = set()
        for y in range(0, height, step):
            found.update(memoryview(data)[y * line:y * line + width * 4].cast('I'))
        return len(found)

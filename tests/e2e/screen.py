"""The X server of a test, over the test's own connection: which window has the focus, whether the programs have
taken the events that were sent to them, and the colour of a point."""
import select
import time

from Xlib import X, display
from Xlib.error import BadDrawable, BadWindow
from Xlib.protocol.event import ClientMessage

ANSWER_SECONDS = 1  # after which another window is asked: the first one may have closed
WAIT_SECONDS = 60


class Screen:
    def __init__(self):
        self.display = display.Display()
        self.root = self.display.screen().root
        self.root.change_attributes(event_mask=X.StructureNotifyMask | X.SubstructureNotifyMask)  # answers to pings come there
        self.serial = 0

    def property(self, window, name):
        """The numbers of a property, none when it or the window is not there."""
        try:
            found = window.get_full_property(self.display.intern_atom(name), X.AnyPropertyType)
        except (BadWindow, BadDrawable):
            return []
        return list(found.value) if found else []

    def isFocusSettled(self):
        """True if the active window of the window manager has the focus. It does not while the focus moves."""
        active = self.property(self.root, '_NET_ACTIVE_WINDOW')
        focus = self.display.get_input_focus().focus
        return bool(active and active[0]) and getattr(focus, 'id', focus) == active[0]

    def oldestWindows(self):
        """The oldest window of each program on the screen."""
        oldest = {}
        for number in self.property(self.root, '_NET_CLIENT_LIST'):
            owner = self.property(self.display.create_resource_object('window', number), '_NET_WM_PID')
            if owner:
                oldest.setdefault(owner[0], number)
        return list(oldest.values())

    def settle(self):
        """Waits until every program on the screen has taken the events that were sent before: each answers a ping
        that was sent after them. A program that ends need not answer."""
        end = time.monotonic() + WAIT_SECONDS
        while not self.isAnswered(self.oldestWindows()):
            if time.monotonic() > end:
                raise AssertionError('a program takes no events')

    def isAnswered(self, windows):
        """Pings the windows; whether all of them have answered in time."""
        self.serial += 1
        ping = [self.display.intern_atom('_NET_WM_PING'), self.serial]
        for window in windows:
            message = ClientMessage(window=window, client_type=self.display.intern_atom('WM_PROTOCOLS'),
                                    data=(32, [*ping, window, 0, 0]))
            self.display.send_event(window, message, onerror=lambda *_: None)
        self.display.flush()
        waiting, end = set(windows), time.monotonic() + ANSWER_SECONDS
        while waiting and time.monotonic() < end:
            if not self.display.pending_events():
                select.select([self.display.fileno()], [], [], max(0, end - time.monotonic()))
            while self.display.pending_events():
                event = self.display.next_event()
                if isinstance(event, ClientMessage) and list(event.data[1][:2]) == ping:
                    waiting.discard(event.data[1][2])
        return not waiting

    def colorAt(self, point):
        """(red, green, blue) of a point."""
        blue, green, red = self.root.get_image(*map(int, point), 1, 1, X.ZPixmap, 0xFFFFFFFF).data[:3]
        return red, green, blue

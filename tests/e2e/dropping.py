"""Drops files on a window as a file manager does: the source's side of the XDND protocol, over a separate connection."""
import select
import time
import urllib.parse

from Xlib import X, display
from Xlib.protocol.event import ClientMessage, SelectionNotify

VERSION = 5
WAIT_SECONDS = 60
URI_LIST = 'text/uri-list'


class Dropping:
    def __init__(self, paths, point):
        self.display = display.Display()
        self.root = self.display.screen().root
        self.point = tuple(map(int, point))
        self.content = ''.join(f'file://{urllib.parse.quote(path)}\r\n' for path in paths).encode()
        self.source = self.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.target = self.windowThatTakesDrops()

    def atom(self, name):
        return self.display.intern_atom(name)

    def windowThatTakesDrops(self):
        """The window under the point that has declared it, below the frame of the window manager."""
        window = self.root
        while window:
            if window.get_full_property(self.atom('XdndAware'), X.AnyPropertyType):
                return window
            window = window.translate_coords(self.root, *self.point).child
        raise AssertionError(f'no window takes drops at {self.point}')

    def send(self, name, *data):
        message = ClientMessage(window=self.target, client_type=self.atom(name), data=(32, [self.source.id, *data]))
        self.target.send_event(message)
        self.display.flush()

    def answerRequest(self, request):
        """Hands the list of files over."""
        request.requestor.change_property(request.property, request.target, 8, self.content)
        request.requestor.send_event(SelectionNotify(time=request.time, requestor=request.requestor, selection=request.selection,
                                                     target=request.target, property=request.property))
        self.display.flush()

    def waitFor(self, name):
        """The data of the target's answer."""
        end = time.monotonic() + WAIT_SECONDS
        while time.monotonic() < end:
            if not self.display.pending_events():
                select.select([self.display.fileno()], [], [], end - time.monotonic())
            while self.display.pending_events():
                event = self.display.next_event()
                if event.type == X.SelectionRequest:
                    self.answerRequest(event)
                elif event.type == X.ClientMessage and event.client_type == self.atom(name):
                    return list(event.data[1])
        raise AssertionError(f'no {name}')

    def run(self):
        """Whether the target took the files."""
        self.source.set_selection_owner(self.atom('XdndSelection'), X.CurrentTime)
        self.send('XdndEnter', VERSION << 24, self.atom(URI_LIST), X.NONE, X.NONE)
        x, y = self.point
        self.send('XdndPosition', 0, x << 16 | y, X.CurrentTime, self.atom('XdndActionCopy'))
        if not self.waitFor('XdndStatus')[1] & 1:
            self.send('XdndLeave', 0, 0, 0, 0)
            return False
        self.send('XdndDrop', 0, X.CurrentTime, 0, 0)
        self.waitFor('XdndFinished')
        return True


def drop(paths, point):
    """Drops files at a point of the screen; whether they were taken there."""
    dropping = Dropping(paths, point)
    try:
        return dropping.run()
    finally:
        dropping.display.close()

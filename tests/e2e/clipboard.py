"""Another program that owns the clipboard, run by a thread: it delivers a picture at once or in pieces, or it hangs."""
import select
import threading

from Xlib import X, Xatom, display
from Xlib.protocol.event import SelectionNotify

FORMAT = 'image/bmp'
PIECE = 50000
LONGEST_AT_ONCE = 200000


class ClipboardOwner:
    def __init__(self, content=None):
        """Offers `content` as a bitmap; without it, it never answers."""
        self.content = content
        self.display = display.Display()
        root = self.display.screen().root
        self.window = root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.window.set_selection_owner(self.display.intern_atom('CLIPBOARD'), X.CurrentTime)
        self.display.sync()
        self.pieces = []
        self.receiver = None
        self.asked = threading.Event()
        self.ended = threading.Event()
        self.thread = threading.Thread(target=self.run, daemon=True)
        self.thread.start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.ended.set()
        self.thread.join()
        self.display.close()

    def run(self):
        while not self.ended.is_set():
            if not self.display.pending_events():
                select.select([self.display.fileno()], [], [], 0.1)
            while self.display.pending_events():
                event = self.display.next_event()
                if event.type == X.SelectionRequest:
                    self.asked.set()
                    if self.content is not None:
                        self.answer(event)
                elif event.type == X.PropertyNotify and event.state == X.PropertyDelete and self.pieces:
                    self.sendPiece(event.atom)

    def answer(self, request):
        requestor, atom = request.requestor, self.display.intern_atom
        if request.target == atom('TARGETS'):
            requestor.change_property(request.property, Xatom.ATOM, 32, [atom('TARGETS'), atom(FORMAT)])
        elif len(self.content) <= LONGEST_AT_ONCE:
            requestor.change_property(request.property, request.target, 8, self.content)
        else:
            # The receiver asks for each piece by deleting the one before it; an empty one is the last.
            starts = range(0, len(self.content), PIECE)
            self.pieces = [self.content[start:start + PIECE] for start in starts] + [b'']
            self.receiver, self.target = requestor, request.target
            requestor.change_attributes(event_mask=X.PropertyChangeMask)
            requestor.change_property(request.property, atom('INCR'), 32, [len(self.content)])
        requestor.send_event(SelectionNotify(time=request.time, requestor=requestor, selection=request.selection,
                                             target=request.target, property=request.property))
        self.display.flush()

    def sendPiece(self, name):
        self.receiver.change_property(name, self.target, 8, self.pieces.pop(0))
        self.display.flush()

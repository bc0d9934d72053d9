"""What a screen reader hears: the events of a program on the accessibility bus, recorded in the order in which they
come. A listener runs in a process of its own, since it needs the bus's main loop."""
import json
import subprocess
import sys
import time

SHOWING = 'object:state-changed:showing'
DESCRIBED = 'object:property-change:accessible-description'
WAIT_SECONDS = 30
POLL_SECONDS = 0.05

LISTENER = r'''
import json, sys
import gi
gi.require_version('Atspi', '2.0')
from gi.repository import Atspi
process = int(sys.argv[1])

def hear(event):
    source = event.source
    try:
        if source.get_process_id() != process:
            return
        source.clear_cache()  # otherwise the name may be a former one
        print(json.dumps([event.type, source.get_role_name(), source.get_name(), event.detail1]), flush=True)
    except Exception:
        pass  # the source has disappeared

listener = Atspi.EventListener.new(hear)
for name in sys.argv[2:]:
    listener.register(name)
print('listening', flush=True)
Atspi.event_main()
'''


class Hearing:
    """Records the events of the live region and of these types from here on. Use it in a with statement."""

    def __init__(self, session, program, *types):
        self.process = subprocess.Popen([sys.executable, '-c', LISTENER, str(program.process.pid), SHOWING, *types],
                                        stdout=subprocess.PIPE, stderr=session.log, text=True)
        assert self.process.stdout.readline() == 'listening\n'
        self.path = session.path('heard')
        # A thread would do as well; a file needs no lock.
        self.copier = subprocess.Popen(['sh', '-c', f'cat > {self.path!r}'], stdin=self.process.stdout)
        self.process.stdout.close()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        self.copier.wait()

    def events(self):
        """[type, role, name, detail] of each event so far."""
        with open(self.path, encoding='utf-8') as file:
            return [json.loads(line) for line in file if line.endswith('\n')]

    def notices(self):
        """The texts that were spoken by the live region."""
        return [name for event, role, name, shown in self.events()
                if role == 'notification' and event == SHOWING and shown]

    def waitFor(self, question, what):
        end = time.monotonic() + WAIT_SECONDS
        while not question(self.events()):
            assert time.monotonic() < end, f'waited in vain for {what}; heard {self.events()[-10:]}'
            time.sleep(POLL_SECONDS)

    def waitForNotices(self, count):
        self.waitFor(lambda _: len(self.notices()) >= count, f'{count} notices, {self.notices()}')

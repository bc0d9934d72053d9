"""The running program as a person meets it: controls found by the names that a screen reader speaks, pressed with the
real mouse."""
import time

import pyatspi

START_SECONDS = 30
WAIT_SECONDS = 10
POLL_SECONDS = 0.1
STILL_POLLS = 4
DIALOG_ROLES = ('dialog', 'alert', 'file chooser', 'message box')
TEXT_ROLES = ('label', 'static', 'text')
SMALLEST_MAIN_FORM = (780, 540)  # the start-up picture and boxes are smaller
DEEPEST = 40


def plain(caption):
    """A caption as it is spoken: no access key, single blanks."""
    return ' '.join((caption or '').replace('&', '').split())


class Program:
    def __init__(self, session, process):
        self.session, self.process = session, process

    # Waiting ---------------------------------------------------------------------------------------------------------

    def wait(self, question, what, seconds=WAIT_SECONDS):
        """The first true answer of `question`; an AssertionError that names `what` when there is none in time."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            try:
                answer = question()
            except Exception:  # a control that vanished while it was being read
                answer = None
            if answer:
                return answer
            time.sleep(POLL_SECONDS)
        if self.process.poll() is not None:
            raise AssertionError(f'waited for {what}, but the program has ended with {self.process.returncode}')
        raise AssertionError(f'waited in vain for {what}')

    def waitForMainForm(self):
        """The main form, once the window manager has put it into its place and it takes keys."""
        self.wait(self.mainForm, 'the main form', START_SECONDS)
        places = []

        def stays():
            places.append(self.box(self.mainForm()))
            return len(places) >= STILL_POLLS and len(set(places[-STILL_POLLS:])) == 1

        self.wait(stays, 'the main form to keep its place')
        active = lambda: self.dialogs() or self.mainForm().getState().contains(pyatspi.STATE_ACTIVE)
        self.wait(active, 'the main form to be active')
        return self.mainForm()

    def waitForEnd(self, seconds=WAIT_SECONDS):
        """The exit status."""
        return self.process.wait(seconds)

    # Looking ---------------------------------------------------------------------------------------------------------

    def root(self):
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.clear_cache()
        for index in range(desktop.childCount):
            application = desktop.getChildAtIndex(index)
            if application and application.get_process_id() == self.process.pid:
                application.clear_cache()
                return application
        return None

    def windows(self):
        root = self.root()
        children = [root.getChildAtIndex(i) for i in range(root.childCount)] if root else []
        return [child for child in children if child and child.getState().contains(pyatspi.STATE_VISIBLE)]

    def mainForm(self):
        for window in self.windows():
            _, _, width, height = self.box(window)
            if width >= SMALLEST_MAIN_FORM[0] and height >= SMALLEST_MAIN_FORM[1]:
                return window
        return None

    def walk(self, top):
        """`top` and everything in it, outer before inner."""
        waiting = [(top, 0)]
        while waiting:
            control, depth = waiting.pop()
            if not control:
                continue
            yield control
            if depth < DEEPEST:
                waiting += [(control.getChildAtIndex(i), depth + 1) for i in reversed(range(control.childCount))]

    def find(self, name, role=None, under=None, startsWith=False):
        """The visible control of that name, None without one."""
        wanted = plain(name)
        for window in [under] if under else self.windows():
            for control in self.walk(window):
                spoken = plain(control.name)
                if (spoken.startswith(wanted) if startsWith else spoken == wanted) and \
                        role in (None, control.getRoleName()) and control.getState().contains(pyatspi.STATE_SHOWING):
                    return control
        return None

    def need(self, name, **how):
        return self.wait(lambda: self.find(name, **how), f'the control "{name}"')

    def box(self, control):
        """x, y, width and height on the screen."""
        extents = control.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return extents.x, extents.y, extents.width, extents.height

    def centre(self, control):
        x, y, width, height = self.box(control)
        return x + width // 2, y + height // 2

    def isEnabled(self, control):
        return control.getState().contains(pyatspi.STATE_ENABLED)

    def isFocused(self, control):
        return control.getState().contains(pyatspi.STATE_FOCUSED)

    def value(self, name):
        """The text that the control of that name holds."""
        control = self.need(name)
        try:
            return control.queryText().getText(0, -1)
        except NotImplementedError:
            return control.description

    def describe(self):
        """Every control with role, name and place: for the report of a failure."""
        lines = []
        for window in self.windows():
            for control in self.walk(window):
                if control.getState().contains(pyatspi.STATE_SHOWING):
                    lines.append(f'{control.getRoleName()} {control.name!r} {self.box(control)}')
        return '\n'.join(lines)

    # Pressing --------------------------------------------------------------------------------------------------------

    def press(self, name, **how):
        self.session.click(self.centre(self.need(name, **how)))

    def menu(self, *captions):
        """Walks from the menu bar to an entry; a caption may be given by its beginning."""
        control = None
        for caption in captions:
            control = self.need(caption, under=control, startsWith=True, role='menu item')
            self.session.click(self.centre(control))

    # Dialogs ---------------------------------------------------------------------------------------------------------

    def dialogs(self):
        return [window for window in self.windows() if window.getRoleName() in DIALOG_ROLES]

    def waitForDialog(self):
        return self.wait(lambda: next(iter(self.dialogs()), None), 'a dialog')

    def waitForNoDialog(self):
        self.wait(lambda: not self.dialogs(), 'the dialogs to close')

    def dialogText(self, dialog):
        return '\n'.join(control.name for control in self.walk(dialog) if control.getRoleName() in TEXT_ROLES and control.name)

    def answerFileDialog(self, path):
        """Types a path into the file dialog that is about to open, and accepts it."""
        dialog = self.waitForDialog()
        self.wait(lambda: self.find('File name:', under=dialog), 'the field for the file name')
        time.sleep(2 * POLL_SECONDS)  # the field takes the focus after it is shown
        self.session.keys('ctrl+a')
        self.session.type(path)
        self.session.keys('Return')
        self.waitForNoDialog()

    # Editing Area ----------------------------------------------------------------------------------------------------

    def pixelPoint(self, x, y, size):
        """Where on the screen the middle of an icon's pixel is; `size` is the icon's."""
        left, top, width, _ = self.box(self.need('Editing Area'))
        magnification = width // size
        return left + x * magnification + magnification // 2, top + y * magnification + magnification // 2

    def chartPoint(self, chart, column, row, columns, rows):
        left, top, width, height = self.box(self.need(chart))
        return left + (2 * column + 1) * width // (2 * columns), top + (2 * row + 1) * height // (2 * rows)

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
MOST_TAB_STOPS = 40
OPERATED_ROLES = ('push button', 'toggle button', 'check box', 'radio button', 'text', 'combo box', 'list', 'spin button',
                  'slider', 'canvas', 'graphic', 'image', 'icon', 'color chooser')


def plain(caption):
    """A caption as it is spoken: no access key, single blanks."""
    return ' '.join((caption or '').replace('&', '').split())


def spokenName(control):
    """The name that a screen reader speaks: a drop-down list's own name is what it holds, its label is told apart."""
    if control.getRoleName() == 'combo box':
        labels = [relation.getTarget(0) for relation in control.getRelationSet()
                  if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY]
        return plain(labels[0].name).removesuffix(':') if labels else ''
    return plain(control.name)


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

    def isShown(self, control):
        return control.getState().contains(pyatspi.STATE_SHOWING)

    def walk(self, top):
        """What is shown of `top` and of everything in it, outer before inner. Items of a list that is hidden would tell
        that they are shown."""
        waiting = [(top, 0)]
        while waiting:
            control, depth = waiting.pop()
            if not control or not self.isShown(control):
                continue
            yield control
            if depth < DEEPEST:
                waiting += [(control.getChildAtIndex(i), depth + 1) for i in reversed(range(control.childCount))]

    def find(self, name, role=None, under=None, startsWith=False):
        """The visible control of that name, None without one."""
        wanted = plain(name)
        # What is on top first: most of what is looked for is there.
        for window in [under] if under else reversed(self.windows()):
            for control in self.walk(window):
                if role and role != control.getRoleName():
                    continue
                spoken = spokenName(control) if role == 'combo box' else plain(control.name)
                if spoken.startswith(wanted) if startsWith else spoken == wanted:
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

    def isSelected(self, control):
        return control.getState().contains(pyatspi.STATE_SELECTED)

    def isFocused(self, control):
        return control.getState().contains(pyatspi.STATE_FOCUSED)

    def value(self, name, role=None):
        """The text that the control of that name holds."""
        control = self.need(name, role=role)
        try:
            return control.queryText().getText(0, -1)
        except NotImplementedError:
            return control.description

    def describe(self):
        """Every control with role, name and place: for the report of a failure."""
        controls = [control for window in self.windows() for control in self.walk(window)]
        return '\n'.join(f'{control.getRoleName()} {control.name!r} {self.box(control)}' for control in controls)

    def nameless(self, top):
        """What is shown in `top`, can be worked with or looked at, and has no name."""
        return [f'{control.getRoleName()} {self.box(control)}' for control in self.walk(top)
                if control.getRoleName() in OPERATED_ROLES and not spokenName(control)]

    # Pressing --------------------------------------------------------------------------------------------------------

    def press(self, name, **how):
        self.session.click(self.centre(self.need(name, **how)))

    def goTo(self, name, **how):
        """Tab until the control of that name has the focus."""
        control = self.need(name, **how)
        for _ in range(MOST_TAB_STOPS):
            if self.isFocused(control):
                return
            self.session.keys('Tab')
        raise AssertionError(f'Tab does not reach "{name}"')

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
        self.chooseFile(path)
        self.waitForNoDialog()

    def chooseFile(self, path, replace=False, before=lambda: None):
        """The same where other dialogs stay. `replace` agrees to lose a file of that name; `before` is done while the
        dialog is open."""
        self.need('File name:', role='label')
        time.sleep(2 * POLL_SECONDS)  # the field takes the focus after it is shown
        before()
        self.session.keys('ctrl+a')
        self.session.type(path)
        self.session.keys('Return')
        if replace:
            self.wait(lambda: any('already exists' in self.dialogText(dialog) for dialog in self.dialogs()), 'the question')
            self.session.keys('alt+y')
        self.wait(lambda: not self.find('File name:', role='label'), 'the file dialog to close')

    def messageBox(self):
        """The message box on top, None without one."""
        return next((dialog for dialog in self.dialogs() if dialog.name == 'Glimmerpane'), None)

    def answerBox(self, beginning, key='Return'):
        """Checks what a box tells, and answers it."""
        text = self.dialogText(self.wait(self.messageBox, f'the box "{beginning}"'))
        assert plain(text).startswith(plain(beginning)), f'{text!r} is not {beginning!r}'
        self.session.keys(key)
        self.wait(lambda: not self.messageBox() or self.dialogText(self.messageBox()) != text, 'the box to close')

    # Editing Area ----------------------------------------------------------------------------------------------------

    def pixelPoint(self, x, y, size):
        """Where on the screen the middle of an icon's pixel is; `size` is the icon's."""
        left, top, width, _ = self.box(self.need('Editing Area'))
        magnification = width // size
        return left + x * magnification + magnification // 2, top + y * magnification + magnification // 2

    def chartPoint(self, chart, column, row, columns, rows):
        left, top, width, height = self.box(self.need(chart))
        return left + (2 * column + 1) * width // (2 * columns), top + (2 * row + 1) * height // (2 * rows)

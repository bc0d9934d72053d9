"""The running program as a user works with it: controls are found by the names that a screen reader speaks, and clicked
with the real mouse."""
import time

import pyatspi

# Long, for busy machines: a wait ends as soon as its condition holds.
START_SECONDS = 60
WAIT_SECONDS = 30
ANSWER_MS = 10000  # for one request on the accessibility bus
POLL_SECONDS = 0.05
DIALOG_ROLES = ('dialog', 'alert', 'file chooser', 'message box')
FILE_FIELD, BOX_TITLE = 'File name:', 'Glimmerpane'
TEXT_ROLES = ('label', 'static', 'text')
SMALLEST_MAIN_FORM = (780, 540)  # the start-up picture and boxes are smaller
DEEPEST = 40
MOST_TAB_STOPS = 40
OPERATED_ROLES = ('push button', 'toggle button', 'check box', 'radio button', 'text', 'combo box', 'list', 'spin button',
                  'slider', 'canvas', 'graphic', 'image', 'icon', 'color chooser')


def plain(caption):
    """A caption as it is spoken: without access key, with single blanks."""
    return ' '.join((caption or '').replace('&', '').split())


def spokenName(control):
    """The name that a screen reader speaks: of a drop-down list the label, as its accessible name is its content."""
    if control.getRoleName() == 'combo box':
        labels = [relation.getTarget(0) for relation in control.getRelationSet()
                  if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY]
        return plain(labels[0].name).removesuffix(':') if labels else ''
    return plain(control.name)


pyatspi.setTimeout(ANSWER_MS, START_SECONDS * 1000)


class Program:
    def __init__(self, session, process):
        self.session, self.process = session, process

    # Waiting ---------------------------------------------------------------------------------------------------------

    def wait(self, question, what, seconds=WAIT_SECONDS, poll=POLL_SECONDS):
        """The first true answer of `question`. Raises an AssertionError that names `what` if there is none in time."""
        end = time.monotonic() + seconds
        problem = None
        while True:
            asked = time.monotonic()
            try:
                answer = question()
            except Exception as vanished:  # a control that has disappeared
                answer, problem = None, vanished
            if answer:
                return answer
            if asked > end:
                break
            # A slow question is asked less often, so that the program gets processor time.
            time.sleep(max(poll, time.monotonic() - asked))
        if self.process.poll() is not None:
            raise AssertionError(f'waited for {what}, but the program has ended with {self.process.returncode}')
        raise AssertionError(f'waited in vain for {what}; {self.situation()}; last problem: {problem!r}')

    def situation(self):
        """The windows, and which of them has the keyboard focus, for failure messages."""
        try:
            windows = [f'{window.getRoleName()} {window.name!r}' + ' (active)' * self.isActive(window) for window in self.windows()]
        except Exception as problem:
            windows = repr(problem)
        return f'windows: {windows}; focus settled: {self.session.screen.isFocusSettled()}'

    def waitForMainForm(self):
        """The main form, once the window manager has placed it and it, or a dialog over it, has the keyboard focus."""
        self.wait(self.mainForm, 'the main form', START_SECONDS)
        self.waitForKeys()
        self.session.screen.settle()
        return self.mainForm()

    def formWithKeys(self):
        """The form with the keyboard focus: a dialog if there is one, otherwise the main form. None while the window
        manager moves the focus, or if it has activated none of them."""
        if not self.session.screen.isFocusSettled():
            return None
        return next((form for form in self.dialogs() or [self.mainForm()] if form and self.isActive(form)), None)

    def waitForKeys(self):
        """The form with the keyboard focus, as soon as there is one; True when the program has ended."""
        return self.wait(lambda: self.process.poll() is not None or self.formWithKeys(), 'a form that takes keys')

    def waitForEnd(self, seconds=WAIT_SECONDS):
        """Waits for the end of the program and returns its exit status."""
        return self.process.wait(seconds)

    # Looking ---------------------------------------------------------------------------------------------------------

    def root(self):
        """The program on the accessibility bus. Raises a LookupError if it is missing: its windows are unknown then."""
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.clear_cache()
        for index in range(desktop.childCount):
            application = desktop.getChildAtIndex(index)
            if application and application.get_process_id() == self.process.pid:
                application.clear_cache()
                return application
        raise LookupError('the program is not on the accessibility bus')

    def windows(self):
        return [child for child in self.children(self.root()) if child and child.getState().contains(pyatspi.STATE_VISIBLE)]

    def mainForm(self):
        for window in self.windows():
            _, _, width, height = self.box(window)
            if width >= SMALLEST_MAIN_FORM[0] and height >= SMALLEST_MAIN_FORM[1]:
                return window
        return None

    def isActive(self, window):
        window.clear_cache()  # an event about it may have been missed
        return window.getState().contains(pyatspi.STATE_ACTIVE)

    def isShown(self, control):
        return control.getState().contains(pyatspi.STATE_SHOWING)

    def children(self, control):
        return [control.getChildAtIndex(index) for index in range(control.childCount)]

    def walk(self, top):
        """The visible controls in `top` and itself, outer before inner. A hidden list is not searched: its items claim
        to be visible."""
        waiting = [(top, 0)]
        while waiting:
            control, depth = waiting.pop()
            if not control or not self.isShown(control):
                continue
            yield control
            if depth < DEEPEST:
                waiting += [(child, depth + 1) for child in reversed(self.children(control))]

    def find(self, name, role=None, under=None, startsWith=False):
        """The visible control of that name, or None."""
        wanted = plain(name)
        # Topmost first: most controls that are looked for are there.
        for window in [under] if under else sorted(self.windows(), key=self.isActive, reverse=True):
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
        """The text in the control of that name."""
        control = self.need(name, role=role)
        try:
            return control.queryText().getText(0, -1)
        except NotImplementedError:
            return control.description

    def describe(self):
        """Every control with role, name and position, for failure messages."""
        controls = [control for window in self.windows() for control in self.walk(window)]
        return '\n'.join(f'{control.getRoleName()} {control.name!r} {self.box(control)}' for control in controls)

    def nameless(self, top):
        """The visible controls in `top` that need a name and have none."""
        return [f'{control.getRoleName()} {self.box(control)}' for control in self.walk(top)
                if control.getRoleName() in OPERATED_ROLES and not spokenName(control)]

    # Pressing --------------------------------------------------------------------------------------------------------

    def press(self, name, **how):
        control = self.need(name, **how)
        self.waitForKeys()
        self.session.click(self.centre(control))

    def keys(self, *names):
        """Presses keys in the top form."""
        self.waitForKeys()
        self.session.keys(*names)

    def command(self, *names):
        """Presses keys in the main form, which must have no dialog over it."""
        self.wait(lambda: not self.dialogs() and self.formWithKeys(), 'the main form to take keys')
        self.session.keys(*names)

    def goTo(self, name, **how):
        """Presses Tab until the control of that name has the focus."""
        control = self.need(name, **how)
        form = self.waitForKeys()
        for _ in range(MOST_TAB_STOPS):
            if self.isFocused(control):
                return
            before = self.focusPlace(form)
            self.session.keys('Tab')
            self.wait(lambda: self.focusPlace(form) != before, 'Tab to move the focus')
        raise AssertionError(f'Tab does not reach "{name}"')

    def focusPlace(self, form):
        """Role, name and position of the focused control of a form."""
        return [(control.getRoleName(), control.name, self.box(control)) for control in self.walk(form) if self.isFocused(control)]

    def typeInto(self, name, text, role=None, becomes=None):
        """Waits until the field of that name has the focus, replaces its text, and waits until it holds the text, or
        what the field makes of it."""
        field = self.wait(lambda: self.focusedField(name, role), f'the field "{name}" to have the focus')
        self.session.keys('ctrl+a')
        self.session.type(text)
        wanted = becomes or text
        self.wait(lambda: field.queryText().getText(0, -1) == wanted, f'{wanted!r} in the field "{name}"')

    def focusedField(self, name, role):
        """The field of that name on the top form, None as long as it does not have the focus."""
        form = self.formWithKeys()
        field = form and self.find(name, role=role, under=form)
        return field if field and self.isFocused(field) else None

    # Menus -----------------------------------------------------------------------------------------------------------

    def popUp(self, entry):
        """The menu that an entry has opened, or None."""
        return next((child for child in self.children(entry) if child.getRoleName() == 'popup menu' and self.isShown(child)), None)

    def openedMenus(self):
        bars = [child for child in self.children(self.mainForm()) if child.getRoleName() == 'menu bar']
        return [menu for bar in bars for entry in self.children(bar) if (menu := self.popUp(entry))]

    def waitForNoMenu(self):
        self.wait(lambda: self.process.poll() is not None or not self.openedMenus(), 'the menus to close')

    def openMenu(self, caption, under=None):
        """Clicks on an entry, given by the beginning of its caption, and waits for its sub-menu."""
        entry = self.need(caption, under=under, startsWith=True, role='menu item')
        self.session.click(self.centre(entry))
        return self.wait(lambda: self.popUp(entry), f'the menu "{caption}"')

    def menu(self, *captions):
        """Clicks from the menu bar to an entry; captions can be given by their beginning."""
        self.waitForKeys()
        menu = None
        for caption in captions[:-1]:
            menu = self.openMenu(caption, menu)
        entry = self.need(captions[-1], under=menu, startsWith=True, role='menu item')
        self.session.click(self.centre(entry))
        self.waitForNoMenu()

    def menuByKeys(self, opening, *names):
        """Opens a menu of the main form by its access key, and presses keys in it."""
        self.command(opening)
        self.wait(self.openedMenus, f'the menu of {opening}')
        self.session.keys(*names)
        self.waitForNoMenu()

    # Dialogs ---------------------------------------------------------------------------------------------------------

    def dialogs(self):
        return [window for window in self.windows() if window.getRoleName() in DIALOG_ROLES]

    def waitForDialog(self):
        """A dialog with the keyboard focus."""
        return self.wait(lambda: self.dialogs() and self.formWithKeys(), 'a dialog')

    def waitForNoDialog(self):
        self.wait(lambda: not self.dialogs() and self.formWithKeys(), 'the dialogs to close and the main form to take keys')

    def dialogText(self, dialog):
        return '\n'.join(control.name for control in self.walk(dialog) if control.getRoleName() in TEXT_ROLES and control.name)

    def answerFileDialog(self, path):
        """Types a path into the file dialog that is about to open, and accepts it."""
        self.chooseFile(path)
        self.waitForNoDialog()

    def chooseFile(self, path, replace=False, before=lambda: None):
        """The same, where other dialogs remain open. `replace` agrees to overwrite a file; `before` is called while the
        dialog is open."""
        self.waitForFileDialog()
        before()
        self.typeInto(FILE_FIELD, path, role='text')
        self.session.keys('Return')
        if replace:
            self.wait(lambda: 'already exists' in self.dialogText(self.formWithKeys()), 'the question')
            self.session.keys('alt+y')
        self.waitForNoFileDialog()

    def giveUpFile(self):
        """Closes the file dialog that is about to open."""
        self.waitForFileDialog()
        self.session.keys('Escape')
        self.waitForNoFileDialog()

    def waitForFileDialog(self):
        self.wait(lambda: self.focusedField(FILE_FIELD, 'text'), 'the file dialog')

    def waitForNoFileDialog(self):
        self.wait(lambda: not self.find(FILE_FIELD, role='label'), 'the file dialog to close')
        self.waitForKeys()

    def messageBox(self):
        """The message box with the keyboard focus, or None."""
        form = self.formWithKeys()
        return form if form and self.isBox(form) else None

    def isBox(self, window):
        return window.getRoleName() in DIALOG_ROLES and window.name == BOX_TITLE

    def answerBox(self, beginning, key='Return'):
        """Checks the text of a box, and answers it."""
        text = self.dialogText(self.wait(self.messageBox, f'the box "{beginning}"'))
        assert plain(text).startswith(plain(beginning)), f'{text!r} is not {beginning!r}'
        self.session.keys(key)
        self.wait(lambda: not self.isTold(text), 'the box to close')
        self.waitForKeys()

    def isTold(self, text):
        """True if a box with that text is open."""
        return any(self.isBox(window) and self.dialogText(window) == text for window in self.windows())

    # Editing Area ----------------------------------------------------------------------------------------------------

    def pixelPoint(self, x, y, size):
        """The screen position of the centre of an icon pixel; `size` is that of the icon."""
        left, top, width, _ = self.box(self.need('Editing Area'))
        magnification = width // size
        return left + x * magnification + magnification // 2, top + y * magnification + magnification // 2

    def chartPoint(self, chart, column, row, columns, rows):
        left, top, width, height = self.box(self.need(chart))
        return left + (2 * column + 1) * width // (2 * columns), top + (2 * row + 1) * height // (2 * rows)

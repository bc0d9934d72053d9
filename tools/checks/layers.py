"""Checks the include lines against the row of rooms, which is the table in docs/architecture.md."""
import re

from standard_headers import C_HEADERS, CXX_HEADERS
from tree import isUi

ARCHITECTURE = 'docs/architecture.md'
ROW = re.compile(r'^\|\s*`(\w+)`\s*\|[^|]*\|([^|]*)\|\s*$')
NAME = re.compile(r'`(\w+)`')
ROOMS_CMAKE = re.compile(r'^set\(ROOMS ([^)]*)\)', re.M)
NOT_A_ROOM_OF_THE_ROW = ('app', 'cli')
X11_PLACE = 'src/platform/qt/'
POSIX_PLACES = ('src/platform/qt/', 'src/app/')
CORE_POSIX_PLACE = 'src/platform/files/'  # what the standard library cannot do with files: sync, exclusive names, locks
CODEC_PLACE, CODEC_HEADERS = 'src/platform/codec/', ('png.h',)


def readRooms(text):
    """Room -> rooms that it may include, from the table's rows: "nothing", "the rooms above", "`a` to `b`" or names."""
    rooms = {}
    for line in text.splitlines():
        match = ROW.match(line)
        if match:
            rooms[match.group(1)] = allowed(match.group(2).strip(), list(rooms))
    return rooms


def allowed(cell, above):
    if cell == 'the rooms above':
        return set(above)
    names = NAME.findall(cell)
    if len(names) == 2 and '` to `' in cell:
        return set(above[above.index(names[0]):above.index(names[1]) + 1])
    return set(names)


def check(tree):
    if not tree.has(ARCHITECTURE):
        return [f'{ARCHITECTURE} with the table of rooms is missing']
    rooms = readRooms(tree.text(ARCHITECTURE))
    if not rooms:
        return [f'{ARCHITECTURE} has no table of rooms']
    problems = checkBuild(tree, rooms)
    for name in tree.sources('src'):
        for number, kind, target in tree.includes(name):
            reason = quoted(tree, rooms, name, target) if kind == '"' else angled(name, target)
            if reason:
                problems.append(f'{name}:{number}: {reason}')
    return problems


def checkBuild(tree, rooms):
    """Checks that the build links the rooms in the same order."""
    if not tree.has('cmake/Rooms.cmake'):
        return []
    built = ROOMS_CMAKE.search(tree.text('cmake/Rooms.cmake')).group(1).split()
    documented = [room for room in rooms if room not in NOT_A_ROOM_OF_THE_ROW]
    return [] if built == documented else [f'cmake/Rooms.cmake has the row {built}, {ARCHITECTURE} {documented}']


def quoted(tree, rooms, name, target):
    room, ui = name.split('/')[1], isUi(name)
    if not tree.has('src/' + target):
        made = ui and (target.startswith('generated/') or target.endswith('.moc'))
        return '' if made else f'"{target}" is not a file below src/'
    other = target.split('/')[0]
    if room not in rooms:
        return f'the room {room} is not in {ARCHITECTURE}'
    if other != room and other not in rooms[room]:
        return f'{room} must not include "{target}"'
    if isUi('src/' + target) and not ui:
        return f'the core must not include "{target}"'
    return ''


def isPosix(target):
    return target.endswith('.h') and not target.startswith(('Q', 'X11/', 'xcb/'))


def angled(name, target):
    if target in CXX_HEADERS:
        return ''
    if target in CODEC_HEADERS:
        return '' if name.startswith(CODEC_PLACE) else f'<{target}> is for {CODEC_PLACE} only'
    if not isUi(name):
        allowedHere = name.startswith(CORE_POSIX_PLACE) and isPosix(target)
        return '' if allowedHere else f'<{target}> is not the C++ standard library'
    if target.startswith('Q'):
        return ''
    if target.startswith(('X11/', 'xcb/')) and not name.startswith(X11_PLACE):
        return f'<{target}> is X11, which only {X11_PLACE} may speak'
    if name.startswith(POSIX_PLACES) or target in C_HEADERS:
        return ''
    return f'<{target}> is neither Qt nor the C++ standard library'

"""Checks the length of files and functions, and the opening comment of headers."""
import re

MAX_FILE_LINES = {'src': 300, 'tests': 600, 'bench': 600, 'tools': 600}
MAX_FUNCTION_LINES = 60
PLACES = ('src', 'tests', 'bench')

# Comments, raw strings, strings and characters, in which a brace does not count.
NOT_CODE = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\'', re.S)
SCOPE = re.compile(r'\b(namespace|class|struct|enum|union|extern)\b')
CONTROL = re.compile(r'^\s*(if|for|while|switch|else|do|try|catch)\b')


def blank(match):
    """Replaces a match by spaces and keeps its line breaks."""
    return re.sub(r'[^\n]', ' ', match.group(0))


def functions(text):
    """(line of the opening brace, number of lines, head) of each outermost function body."""
    code = NOT_CODE.sub(blank, text)
    depth, bodyDepth, start, headStart = 0, None, 0, 0
    for at, char in enumerate(code):
        if char == '{':
            head = code[headStart:at]
            if bodyDepth is None and ')' in head and not CONTROL.match(head) and not isScope(head):
                bodyDepth, start, bodyHead = depth, at, head
            depth += 1
        elif char == '}':
            depth -= 1
            if depth == bodyDepth:
                bodyDepth = None
                yield code.count('\n', 0, start) + 1, code.count('\n', start, at) + 1, ' '.join(bodyHead.split())
        if char in ';{}' and bodyDepth is None:
            headStart = at + 1


def isScope(head):
    """True for a class or namespace whose head has brackets: attributes, alignas, template arguments of a base."""
    match = SCOPE.search(head)
    return bool(match) and '(' not in head[:match.start()] and not re.search(r'\)\s*(const|noexcept|override)?\s*$', head)


def checkFiles(tree):
    problems = []
    for name in tree.sources(*MAX_FILE_LINES, endings=('.cpp', '.h', '.py')):
        lines, allowed = tree.text(name).count('\n'), MAX_FILE_LINES[name.split('/')[0]]
        if lines > allowed:
            problems.append(f'{name} has {lines} lines, {allowed} are allowed')
    return problems


def checkFunctions(tree):
    problems = []
    for name in tree.sources(*PLACES):
        for line, lines, head in functions(tree.text(name)):
            if lines > MAX_FUNCTION_LINES:
                problems.append(f'{name}:{line}: {lines} lines, {MAX_FUNCTION_LINES} are allowed: {head[-60:]}')
    return problems


def checkOpenings(tree):
    problems = []
    for name in tree.sources('src', endings=('.h',)):
        lines = tree.text(name).splitlines()
        if not lines or not lines[0].startswith('//'):
            problems.append(f'{name} does not begin with a comment that tells what it is for')
        if '#pragma once' not in lines:
            problems.append(f'{name} has no #pragma once')
    return problems

"""Two lists of words: those that do not belong into this program, in any file or commit message, and stilted English, in
comments and documents. Texts of the program itself are not subject to the second list."""
import re

from comments import commentsOf

EXEMPT = ('DEVELOPERS.md',)
# Phrases in which a forbidden word is a term of the program.
ALLOWED = re.compile(r'animated cursor session|ANI session|session for 32x32|cursor session', re.I)

# The second list: word -> what to write instead.
STILTED = {
    r'nobody': 'no one',
    r'anew': 'again',
    r'of such(?! an?\b)': 'of these',
    r'(?:tells?|told)(?! (?:\S+ ){0,9}(?:apart|from)\b)': 'reports, states, shows',
    r'(?:stands?|stood)(?! (?:(?:in )?for|still|out)\b)': 'is',
    r'wants?': 'requires',
    r'there (?:is|are) but': 'there is only',
    r'becomes? of': 'happens to',
    r'(?:others\'|the|whose|its) business|affair of': 'is handled by',
    r'lent': 'given',
    r'(?:a|the) lies?': 'wrong',
    r'in the midst': 'during',
    r'bears?|borne': 'has',
    r'by turns': 'alternately',
    r'no mere': 'not only',
    r'meant so': 'intended',
    r'hereby|thereof|whence|aught|seldom|upon': 'a common word',
}


def pattern():
    """Composed of halves, so that this file passes its own rule."""
    halves = [
        ('specifi', 'cation'), (r'\bspec\.', r'md\b'), (r'\bthe ', r'spec\b'), ('per ', 'spec'),
        (r'\bParts? ', r'[0-9]+(\.[0-9]+)?\b'), ('seed ', 'document'), ('the document ', 'says'),
        (r'\bsub-?', r'agents?\b'), (r'\bassis', r'tants?\b'), (r'\bL', r'LMs?\b'), ('this ', 'session'),
        (r'dev(eloper)?s.? ', 'session'), (r'\.lib', 'rary'), ('/wo', 'rk/'), ('/tmp/', 'ceo'), ('/tmp/', 'brief'),
        ('farm-', '(studio|bench)'), (r'\bissues? ', r'#?[0-9]+\b'), (r'\bclau', r'de\b'), ('anthro', 'pic'),
        ('chat', 'gpt'), ('open', r'ai\b'),
    ]
    return re.compile('|'.join(first + second for first, second in halves), re.I)


def findIn(text, forbidden):
    """(line number, line) of each line that contains a forbidden word."""
    for number, line in enumerate(text.splitlines(), 1):
        if forbidden.search(ALLOWED.sub('', line)):
            yield number, line.strip()[:120]


def check(tree):
    forbidden = pattern()
    problems = []
    for name in tree.allFiles():
        if name in EXEMPT:
            continue
        if forbidden.search(name):
            problems.append(f'file name {name}')
        text = tree.text(name)
        if '\0' not in text:
            problems += [f'{name}:{number}: {line}' for number, line in findIn(text, forbidden)]
    log = tree.git('log', '--format=%h %s%n%b') if tree.has('.git/HEAD') else None
    problems += [f'commit message: {line}' for _, line in findIn(log or '', forbidden)]
    return problems


def checkEnglish(tree):
    found = {re.compile(rf'\b(?:{word})\b', re.I): better for word, better in STILTED.items()}
    problems = []
    for name in tree.allFiles():
        text = tree.text(name)
        for number, line in commentsOf(name, text) if '\0' not in text else []:
            problems += [f'{name}:{number}: "{match.group(0)}", write "{better}": {line.strip()[:100]}'
                         for stilted, better in found.items() for match in stilted.finditer(line)]
    return problems

"""Checks that the dependencies explained in docs/architecture.md are those that tools/packages.txt installs."""
import re

TABLE = 'tools/packages.txt'
DOCUMENT = 'docs/architecture.md'
HEADING = '## Dependencies'
NAME = re.compile(r'`([a-z0-9][a-z0-9+.-]+)`')


def listed(text):
    return [line.split()[1] for line in text.splitlines() if line.strip() and not line.startswith('#')]


def check(tree):
    if not tree.has(DOCUMENT):
        return [f'{DOCUMENT} is missing']
    _, _, section = tree.text(DOCUMENT).partition(HEADING)
    if not section:
        return [f'{DOCUMENT} has no section "{HEADING}"']
    named = set(NAME.findall(section.split('\n## ')[0]))
    table = listed(tree.text(TABLE))
    return ([f'{package} is installed but {DOCUMENT} does not name it' for package in table if package not in named] +
            [f'{TABLE}: {package} stands twice' for package in sorted(set(table)) if table.count(package) > 1])

"""Icons that gpicon extracts from generated programs and libraries, beside those that wrestool extracts."""
import os
import random
import subprocess

import icons
import libraries

SIZES = (16, 24, 32, 48, 20)
DEPTHS = (1, 4, 8, 24, 32)
LIBRARIES = 12


def gpicon(session, *arguments):
    program = os.path.join(os.path.dirname(session.executable), 'gpicon')
    done = subprocess.run([program, *arguments], capture_output=True, text=True)
    assert (done.returncode, done.stderr) == (0, ''), done.stderr
    return done.stdout


def wrestool(*arguments):
    return subprocess.run(['wrestool', *arguments], capture_output=True, text=True, check=True).stdout


def randomIcons(seed):
    chance = random.Random(seed)
    pictures = ((chance.choice(SIZES), chance.choice(DEPTHS)) for _ in range(100))
    return [[icons.entryOf(icons.motif(size, bits, seed), bits) for size, bits in (next(pictures) for _ in range(chance.randint(1, 6)))]
            for _ in range(chance.randint(1, 9))]


def filesIn(folder):
    return {name: open(os.path.join(folder, name), 'rb').read() for name in os.listdir(folder)}


def test_the_same_icons_are_extracted_as_by_another_reader(session):
    for seed in range(LIBRARIES):
        build = libraries.newExecutable if seed % 2 else libraries.portableExecutable
        made = randomIcons(seed)
        path = session.path(f'made{seed}.dll')
        with open(path, 'wb') as out:
            out.write(build(made))
        groups = [line for line in wrestool('-l', path).splitlines() if '--type=14' in line]
        listed = gpicon(session, 'extract', path).splitlines()
        assert len(listed) == len(groups) == len(made), (seed, listed, groups)
        ours, theirs = session.path(f'ours{seed}'), session.path(f'theirs{seed}')
        os.mkdir(theirs)
        gpicon(session, 'extract', path, '--group', '-d', ours)
        for number in range(1, len(made) + 1):
            wrestool('-x', '-t14', f'-n{number}', '-o', os.path.join(theirs, f'made{seed}_{number - 1}.ico'), path)
        mine, others = filesIn(ours), filesIn(theirs)
        assert set(mine) == set(others), seed
        for name, content in mine.items():
            # Behind the last image, wrestool writes bytes that belong to none.
            assert others[name].startswith(content), (seed, name)
        for number, entries in enumerate(made):
            found = icons.readEntries(os.path.join(ours, f'made{seed}_{number}.ico'))
            assert [entry.image for entry in found] == [entry.image for entry in entries], (seed, number)

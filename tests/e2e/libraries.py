"""Programs and libraries with icons, built byte by byte. An icon is a list of entries as icons.py makes them; icons get
the numbers 1, 2, ... in their order."""
import struct

import icons

RT_ICON, RT_GROUP_ICON = 3, 14
GROUP_ENTRY = struct.Struct('<BBBBHHIH')
LANGUAGE = 1033
SECTION_RVA, SECTION_OFFSET, HEADERS_BYTES = 0x1000, 0x200, 0x200
PE_HEADER = 0x80


def resourcesOf(listed):
    """The images and the groups of icons: {number: bytes} for each."""
    images, groups = {}, {}
    for number, entries in enumerate(listed, 1):
        directory = struct.pack('<HHH', 0, 1, len(entries))
        for entry in entries:
            images[len(images) + 1] = entry.image
            directory += GROUP_ENTRY.pack(*entry[:6], len(entry.image), len(images))
        groups[number] = directory
    return {RT_ICON: images, RT_GROUP_ICON: groups}


def aligned(content, step):
    return content + bytes(-len(content) % step)


def table(count):
    """The header of a resource directory with `count` numbered entries."""
    return struct.pack('<IIHHHH', 0, 0, 0, 0, 0, count)


def resourceSection(resources):
    """Three levels of directories - type, number, language - then the data entries, then the bytes."""
    directoryBytes = 16 + sum(8 + 16 + sum(8 + 24 for _ in items) for items in resources.values())
    entryCount = sum(len(items) for items in resources.values())
    content = aligned(bytes(directoryBytes + 16 * entryCount), 8)
    directories, entries = {0: table(len(resources))}, b''
    nextTable = 16 + 8 * len(resources)
    for kind, items in resources.items():
        directories[0] += struct.pack('<II', kind, nextTable | 1 << 31)
        here, nextTable = nextTable, nextTable + 16 + 8 * len(items)
        directories[here] = table(len(items))
        for number, data in items.items():
            directories[here] += struct.pack('<II', number, nextTable | 1 << 31)
            directories[nextTable] = table(1) + struct.pack('<II', LANGUAGE, directoryBytes + len(entries))
            nextTable += 24
            entries += struct.pack('<IIII', SECTION_RVA + len(content), len(data), 0, 0)
            content = aligned(content + data, 8)
    whole = bytearray(content)
    for offset, data in directories.items():
        whole[offset:offset + len(data)] = data
    whole[directoryBytes:directoryBytes + len(entries)] = entries
    return bytes(whole)


def portableExecutable(listed):
    """A library of the PE format, 32 bits, whose only section holds its resources."""
    section = resourceSection(resourcesOf(listed))
    raw = aligned(section, 0x200)
    dos = b'MZ' + bytes(0x3A) + struct.pack('<I', PE_HEADER)
    optional = struct.pack('<HBBIIIII', 0x10B, 0, 0, 0, len(raw), 0, 0, SECTION_RVA)
    optional += struct.pack('<IIII', 0, 0x400000, 0x1000, 0x200) + struct.pack('<HHHHHHI', 4, 0, 0, 0, 4, 0, 0)
    optional += struct.pack('<III', SECTION_RVA + len(aligned(section, 0x1000)), HEADERS_BYTES, 0)
    optional += struct.pack('<HHIIIIII', 2, 0, 0x100000, 0x1000, 0x100000, 0x1000, 0, 16)
    folders = [(0, 0)] * 16
    folders[2] = (SECTION_RVA, len(section))
    optional += b''.join(struct.pack('<II', *folder) for folder in folders)
    header = b'PE\0\0' + struct.pack('<HHIIIHH', 0x14C, 1, 0, 0, 0, len(optional), 0x2102) + optional
    header += struct.pack('<8sIIIIIIHHI', b'.rsrc', len(section), SECTION_RVA, len(raw), SECTION_OFFSET, 0, 0, 0, 0, 0x40000040)
    return aligned(aligned(dos, PE_HEADER) + header, HEADERS_BYTES) + raw


def newExecutable(listed, shift=4):
    """A library of the NE format: its resource table has offsets and lengths in units of 2 ** shift bytes."""
    unit, header = 1 << shift, 0x40
    resources = resourcesOf(listed)
    tableBytes = 2 + sum(8 + 12 * len(items) for items in resources.values()) + 2 + 1
    base = -(-(0x40 + header + tableBytes) // unit) * unit
    listing, content = struct.pack('<H', shift), b''
    for kind, items in resources.items():
        listing += struct.pack('<HHI', kind | 0x8000, len(items), 0)
        for number, data in items.items():
            listing += struct.pack('<HHHHHH', (base + len(content)) // unit, -(-len(data) // unit), 0x1C10, number | 0x8000, 0, 0)
            content = aligned(content + data, unit)
    listing += struct.pack('<H', 0) + b'\0'
    dos = b'MZ' + bytes(0x3A) + struct.pack('<I', 0x40)
    start = bytearray(b'NE' + bytes(header - 2))
    for offset in (0x22, 0x26, 0x28, 0x2A):  # names of segments, resident names, modules, imported names
        struct.pack_into('<H', start, offset, header + len(listing))
    struct.pack_into('<H', start, 0x24, header)  # the resource table
    start[0x36] = 2  # for Windows
    return (dos + bytes(start) + listing).ljust(base, b'\0') + content


def motifs(count, bits=4):
    """Icons of a large and a small image each."""
    return [[icons.entryOf(icons.motif(size, bits, seed), bits) for size in (32, 16)] for seed in range(count)]

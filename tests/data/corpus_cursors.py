#!/usr/bin/env python3
"""Makes corpus-cursors.tsv from facts.json of the corpus: one line for each cursor file.

usage: corpus_cursors.py FACTS.JSON > corpus-cursors.tsv
Columns: file, expected result of the editor's probe, hot spot x and y, SHA-256 of the first entry's picture as rows of
R, G, B and of its AND mask as bytes 0 or 1; "-" for a PNG picture.
"""
import json
import sys

SIDE = 32
ONLY_OFFSET = 22
COLORS = {1: 2, 4: 16, 8: 256}
# A PNG picture with alpha. The corpus has no cursor without.
PNG_BITS = 32


def probe(directory, entry):
    hotspot = (entry.get("xHotspot"), entry.get("yHotspot"))
    taken = (
        directory["type"] == 2
        and directory["count"] >= 1
        and (entry["bWidth"], entry["bHeight"], entry["dwImageOffset"]) == (SIDE, SIDE, ONLY_OFFSET)
        and all(0 <= place < SIDE for place in hotspot)
    )
    if not taken:
        return "0/0/0"
    bits = entry["header"]["biBitCount"] if "header" in entry else PNG_BITS
    return f"1/{COLORS.get(bits, -1)}/{bits}"


def rows(facts):
    for name, record in sorted(facts.items()):
        if not name.startswith("cur/"):
            continue
        entry = record["entries"][0]
        hashes = [entry[key] if "header" in entry else "-" for key in ("rgb_sha256", "and_mask_sha256")]
        yield [name, probe(record["directory"], entry), entry.get("xHotspot", 0), entry.get("yHotspot", 0), *hashes]


def main():
    with open(sys.argv[1], encoding="utf-8") as stream:
        for row in rows(json.load(stream)):
            print(*row, sep="\t")


if __name__ == "__main__":
    main()

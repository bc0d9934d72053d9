#!/usr/bin/env python3
"""Makes corpus-icons.tsv from facts.json of the corpus: one line for each entry of an icon size.

usage: corpus_icons.py FACTS.JSON > corpus-icons.tsv
Columns: file, index, side, bits of the bitmap header or "png", SHA-256 of the picture as rows of R, G, B, of the AND mask
as bytes 0 or 1, and of the alpha bytes; "-" where nothing was measured.
"""
import json
import sys

SIZES = (16, 24, 32, 48)


def rows(facts):
    for name, record in sorted(facts.items()):
        if not name.startswith("ico/") or record.get("not_icon_file") or record["directory"]["type"] != 1:
            continue
        for index, entry in enumerate(record["entries"]):
            if entry["bWidth"] != entry["bHeight"] or entry["bWidth"] not in SIZES:
                continue
            bits = entry["header"]["biBitCount"] if "header" in entry else entry["format"]
            hashes = [entry.get(key) or "-" for key in ("rgb_sha256", "and_mask_sha256", "alpha_sha256")]
            yield [name, index, entry["bWidth"], bits, *hashes]


def main():
    with open(sys.argv[1], encoding="utf-8") as stream:
        for row in rows(json.load(stream)):
            print(*row, sep="\t")


if __name__ == "__main__":
    main()

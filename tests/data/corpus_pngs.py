#!/usr/bin/env python3
"""Makes corpus-pngs.tsv from facts.json of the corpus: one line for each PNG picture of an icon or cursor file.

usage: corpus_pngs.py FACTS.JSON > corpus-pngs.tsv
Columns: file, index, width, height, SHA-256 of the picture's rows of R, G, B and of its alpha.
"""
import json
import sys


def rows(facts):
    for name, record in sorted(facts.items()):
        for index, entry in enumerate(record.get("entries", [])):
            if "png" in entry:
                png = entry["png"]
                yield [name, index, png["width"], png["height"], entry["rgb_sha256"], entry["alpha_sha256"]]


def main():
    with open(sys.argv[1], encoding="utf-8") as stream:
        for row in rows(json.load(stream)):
            print(*row, sep="\t")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Makes corpus-anis.tsv from facts.json of the corpus: what the frames of its animated cursors look like.

usage: corpus_anis.py FACTS.JSON > corpus-anis.tsv
Columns: file; "image" or "step"; for an image, its frame and its index in the frame, for a step its number and "-"; all
from 0; SHA-256 of the picture as rows of R, G, B, of the mask as bytes 0 or 1 for an image and as R, G, B for a step,
and of the alpha values; "-" for what was not measured. A step is the picture of 32 x 32 pixels that was drawn on white; there
are no more of them than frames.
"""
import json
import sys


def images(name, record):
    for number, frame in enumerate(record.get("frames", [])):
        for index, entry in enumerate(frame.get("entries", [])):
            hashes = [entry.get(key) or "-" for key in ("rgb_sha256", "and_mask_sha256", "alpha_sha256")]
            yield [name, "image", number, index, *hashes]


def steps(name, record):
    played = record.get("wine", {}).get("steps", [])
    for number, step in enumerate(played[: len(record.get("frames", []))]):
        yield [name, "step", number, "-", step["rgb"], step["mask"], "-"]


def main():
    with open(sys.argv[1], encoding="utf-8") as stream:
        facts = json.load(stream)
    for name, record in sorted(facts.items()):
        if name.startswith("ani/"):
            for row in [*images(name, record), *steps(name, record)]:
                print(*row, sep="\t")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Makes corpus-libraries.tsv from facts.json of the corpus: the icons of its programs and libraries.

usage: corpus_libraries.py FACTS.JSON > corpus-libraries.tsv
Columns: file; "count" and the number of icons; "group", its number in the list from 0, its name, its language ("-" for
a file without them) and its images as WxHxBITS joined by commas, bits 0 for a PNG picture; "large" or "small", its
number in the list, and SHA-256 of what was drawn, as rows of R, G, B: the picture on black, the picture on white, the
mask on white, and both on white.
"""
import json
import sys


def groups(record):
    """The groups in the order of the list; of several languages, the first one counts."""
    seen = []
    for group in record["groups"]:
        if group["name"] in seen:
            continue
        seen.append(group["name"])
        images = [f'{e.get("width")}x{e.get("height")}x{0 if e["format"] == "png" else e.get("bpp")}' for e in group["entries"]]
        yield ["group", len(seen) - 1, group["name"], group.get("language", "-"), ",".join(images)]


def drawings(record):
    for icon in record["wine"]["icons"]:
        for size in ("large", "small"):
            drawn = icon[size]
            yield [size, icon["index"], *[drawn[key] for key in ("image_black", "image", "mask", "normal")]]


def main():
    with open(sys.argv[1], encoding="utf-8") as stream:
        facts = json.load(stream)
    for name, record in sorted(facts.items()):
        if record["kind"] in ("pe", "ne"):
            for row in [["count", record["wine"]["extract_count"]], *groups(record), *drawings(record)]:
                print(name, *row, sep="\t")


if __name__ == "__main__":
    main()

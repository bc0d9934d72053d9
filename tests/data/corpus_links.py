#!/usr/bin/env python3
"""Makes corpus-links.tsv from facts.json of the corpus: what its shell links name.

usage: corpus_links.py FACTS.JSON > corpus-links.tsv
Columns: file; "link", its target, icon file and number of the icon, or "none" for a file that is no shell link.
"""
import json
import sys


def row(record):
    facts = record["wine"]
    if facts["load_hr"] != "00000000":
        return ["none"]
    return ["link", facts["target_raw"], facts["icon_file"], facts["icon_index"]]


def main():
    with open(sys.argv[1], encoding="utf-8") as stream:
        facts = json.load(stream)
    for name, record in sorted(facts.items()):
        if record["kind"] == "lnk":
            print(name, *row(record), sep="\t")


if __name__ == "__main__":
    main()

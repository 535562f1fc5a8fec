#!/usr/bin/env python3
"""Says which paths named in README.md and docs/ do not exist. A source may be named without its folder."""
import pathlib
import re
import sys

root = pathlib.Path(__file__).resolve().parent.parent
skipped = {"build", ".git", ".cache"}
tops = {entry.name for entry in root.iterdir() if entry.is_dir()} - skipped
known = {file.name for top in tops for file in (root / top).rglob("*")}

# Within backticks or as the target of a link.
named = re.compile(r"`([\w./-]+)`|\]\(([\w./-]+)\)|(?<![\w./-])(script/[\w-]+)")
source = re.compile(r"\.(cpp|h|py|md|csv)$")


def exists(path, page):
    if (root / path).exists() or (page.parent / path).exists():
        return True
    return "/" not in path and path in known


lost = []
count = 0
for page in [root / "README.md", *sorted((root / "docs").glob("*.md"))]:
    for number, line in enumerate(page.read_text().splitlines(), 1):
        for path in (next(filter(None, match)) for match in named.findall(line)):
            if source.search(path) or ("/" in path and path.split("/")[0] in tops):
                count += 1
                if not exists(path, page):
                    lost.append(f"{page.relative_to(root)}:{number}: {path}")
print("\n".join(lost) or f"{count} paths, all there")
sys.exit(bool(lost) or count == 0)

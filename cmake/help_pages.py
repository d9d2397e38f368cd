#!/usr/bin/env python3
"""Cuts the pages of the help out of the documentation: help_pages.py TOPICS ROOT OUT.

TOPICS names for each topic the page and the section that it shows. Written are OUT/TOPIC.md, OUT/Contents.md and
OUT/help.qrc. A page or section that is not there is an error."""
import pathlib
import re
import sys


def topics(path):
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            yield tuple(part.strip() for part in line.split("|"))


def section_of(text, heading):
    if heading == "-":
        return text
    found = re.search(rf"^## {re.escape(heading)}\n.*?(?=^## |\Z)", text, re.M | re.S)
    if not found:
        sys.exit(f"help_pages: there is no section '{heading}'")
    return found.group(0).replace("## ", "# ", 1).replace("\n### ", "\n## ")


def without_links(text):
    """Links to other pages of the documentation lead nowhere in the help: their words stay."""
    return re.sub(r"\[([^\]]+)\]\((?!https?:)[^)]*\)", r"\1", text)


def write(path, text):
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def main():
    topic_file, root, out = (pathlib.Path(argument) for argument in sys.argv[1:])
    out.mkdir(parents=True, exist_ok=True)
    contents, names = ["# Kestra B", ""], ["Contents"]
    listed = set()
    for topic, page, heading in topics(topic_file):
        text = without_links(section_of((root / page).read_text(encoding="utf-8"), heading))
        write(out / f"{topic}.md", text)
        names.append(topic)
        title = text.split("\n", 1)[0].lstrip("# ")
        if title not in listed:
            contents.append(f"- [{title}]({topic}.md)")
        listed.add(title)
    write(out / "Contents.md", "\n".join(contents) + "\n")
    files = "".join(f"<file>{name}.md</file>" for name in names)
    write(out / "help.qrc", f'<RCC><qresource prefix="/help">{files}</qresource></RCC>\n')


main()

#!/usr/bin/env python3
"""Finds every relative link, anchor and picture in the documentation and the user's guide that leads nowhere.

Arguments: pages (Markdown or HTML). Reports in GoogleTest's form, so that the test run can count it.
Links to other places of the net are not followed.
"""
import html.parser
import os
import re
import sys
import urllib.parse


def without_code(text):
    """Markdown without its code blocks and code spans, which hold no links."""
    text = re.sub(r"^```.*?^```", "", text, flags=re.M | re.S)
    return re.sub(r"`[^`\n]*`", "", text)


def slug(heading):
    """The anchor that the usual Markdown renderers give a heading."""
    text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading)
    text = re.sub(r"[^\w\- ]", "", text.strip().lower())
    return text.replace(" ", "-")


class HtmlPage(html.parser.HTMLParser):
    def __init__(self):
        super().__init__()
        self.links, self.anchors = [], []

    def handle_starttag(self, tag, attrs):
        for name, value in attrs:
            if name in ("href", "src") and value is not None:
                self.links.append(value)
            if name == "id" or (name == "name" and tag == "a"):
                self.anchors.append(value)


def read(path):
    """The links and the anchors of a page; an anchor that is there twice leads to the first only."""
    with open(path, encoding="utf-8") as file:
        text = file.read()
    if path.endswith(".md"):
        prose = without_code(text)
        links = re.findall(r"!?\[[^\]]*\]\(\s*<?([^)\s>]+)>?[^)]*\)", prose)
        links += re.findall(r"^\[[^\]]+\]:\s*(\S+)", prose, flags=re.M)
        links += re.findall(r"<(?:a|img)\s[^>]*(?:href|src)=\"([^\"]+)\"", prose)
        headings = re.findall(r"^#{1,6}\s+(.*?)\s*#*$", re.sub(r"^```.*?^```", "", text, flags=re.M | re.S), flags=re.M)
        return links, [slug(heading) for heading in headings]
    page = HtmlPage()
    page.feed(text)
    return page.links, page.anchors


def faults(path):
    found = []
    links, anchors = read(path)
    for anchor in sorted({a for a in anchors if anchors.count(a) > 1 and not path.endswith(".md")}):
        found.append(f"the anchor '{anchor}' is there twice")
    for link in links:
        parts = urllib.parse.urlsplit(link)
        if parts.scheme or parts.netloc:
            continue
        target = path if not parts.path else os.path.join(os.path.dirname(path), urllib.parse.unquote(parts.path))
        if not os.path.exists(target):
            found.append(f"'{link}' is not there")
        elif parts.fragment and target.endswith((".md", ".htm", ".html")):
            if urllib.parse.unquote(parts.fragment) not in read(target)[1]:
                found.append(f"'{link}' has no such anchor")
    return found


def main():
    passed, failed = 0, []
    for path in sys.argv[1:]:
        found = faults(path)
        if found:
            failed.append(path)
            print("Failure")
            for fault in found:
                print(f"{path}: {fault}")
        else:
            passed += 1
    print(f"[  PASSED  ] {passed} tests.")
    for path in failed:
        print(f"[  FAILED  ] Pages.LeadSomewhere/{path} (0 ms)")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())

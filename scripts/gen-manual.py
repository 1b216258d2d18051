#!/usr/bin/env python3
"""Generates the function pages, the function overview and the index of the manual.

Reads docs/manual-src/functions-*.txt (one block a function) and docs/manual-src/index.txt
(the hand-made index entries), writes docs/manual/function-NN.html, functions.html and
keywords.html. Run it after changing a source file and commit its output with it:

    scripts/gen-manual.py
"""
import glob
import html
import os
import re

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SRC = os.path.join(ROOT, "docs", "manual-src")
OUT = os.path.join(ROOT, "docs", "manual")

FAMILIES = [
    ("flow", "Flow functions", "steer the order of the lines"),
    ("data", "Data functions", "move and compute values in variables"),
    ("call", "Call control functions", "act on the telephone line"),
    ("prompt", "Prompt and input functions", "talk to the caller and read the caller's keys"),
    ("database", "Database functions", "work on the declared database tables"),
    ("file", "File and system functions", "files, paths, outside programs and export"),
]

LABEL_FIELD = ("Label:", "The line's own label, at most 15 characters (letters, digits and "
               "the signs a label allows). Goto, Gosub, Condition and the other label fields "
               "of the application refer to the line by it; it may stay empty.")


def read_functions():
    funcs = []
    for path in sorted(glob.glob(os.path.join(SRC, "functions-*.txt"))):
        cur = None
        for n, raw in enumerate(open(path, encoding="utf-8"), 1):
            line = raw.rstrip("\n")
            if not line.strip() or line.startswith("#"):
                continue
            if line.startswith("@"):
                number, name = line[1:].split(" ", 1)
                cur = {"no": int(number), "name": name, "fields": [], "kws": [], "rows": [],
                       "notes": [], "example": None, "purpose": "", "family": ""}
                funcs.append(cur)
                continue
            key, _, value = line.partition(": ")
            if cur is None or not _:
                raise SystemExit(f"{path}:{n}: not a line of a block: {line!r}")
            if key in ("field", "kw"):
                caption, sep, text = value.partition(" :: ")
                if not sep:
                    raise SystemExit(f"{path}:{n}: '{key}' needs 'CAPTION :: text'")
                cur["fields" if key == "field" else "kws"].append((caption, text))
            elif key == "row":
                cur["rows"].append(value)
            elif key == "note":
                cur["notes"].append(value)
            elif key == "example":
                label, sep, params = value.partition("| ")
                if not sep:
                    label, params = value.rstrip("|"), ""
                cur["example"] = (label.strip(), params)
            elif key in ("purpose", "family"):
                cur[key] = value
            else:
                raise SystemExit(f"{path}:{n}: unknown key {key!r}")
    return funcs


def page(title, body):
    return ("<!DOCTYPE html>\n<html lang=\"en\">\n<head><meta charset=\"utf-8\"><title>"
            + html.escape(title) + "</title><link rel=\"stylesheet\" href=\"style.css\"></head>\n"
            "<body>\n<p class=\"nav\"><a href=\"index.html\">Contents</a> | "
            "<a href=\"functions.html\">Functions</a> | <a href=\"keywords.html\">Index</a></p>\n"
            + body + "</body>\n</html>\n")


def e(text):
    return html.escape(text, quote=False)


def file_name(f):
    return "function-%02d.html" % f["no"]


def function_page(f):
    out = [f"<h1>{e(f['name'])}</h1>\n",
           f"<p class=\"number\">Function {f['no']}</p>\n",
           f"<p>{e(f['purpose'])}</p>\n",
           f"<h2 id=\"dialog\">The dialog</h2>\n<dl class=\"fields\">\n"]
    for caption, text in [LABEL_FIELD] + f["fields"]:
        out.append(f"<dt class=\"caption\">{e(caption)}</dt><dd>{e(text)}</dd>\n")
    out.append("</dl>\n<p><b>Ok</b> checks the fields in the order above and puts the focus "
               "on the first one that is wrong, with a beep; <b>Cancel</b> leaves the line as "
               "it was.</p>\n")
    out.append("<h2 id=\"line\">In the line</h2>\n<p>The line shows its number, its label, "
               f"\"{e(f['name'])}\" and the parameters")
    if f["kws"]:
        out.append(", with these keywords:</p>\n<table class=\"keywords\">\n")
        for kw, text in f["kws"]:
            out.append(f"<tr><td><code>{e(kw)}</code></td><td>{e(text)}</td></tr>\n")
        out.append("</table>\n")
    else:
        out.append(".</p>\n")
    for note in f["notes"]:
        out.append(f"<p>{e(note)}</p>\n")
    label, params = f["example"] or ("", "")
    prefix = "0003  %-16s  %-17s  " % (label, f["name"])
    out.append("<h2 id=\"example\">Example</h2>\n<pre class=\"example\">"
               + e(("0003  %s  %s  %s" % (label, f["name"], params)).rstrip()) + "</pre>\n")
    if f["rows"]:
        indent = " " * (len(prefix) - 17)
        listing = [prefix.rstrip()] + [indent + r for r in f["rows"]]
        out.append("<h2 id=\"listing\">In the listing</h2>\n<p>Print and <code>kqx list</code> "
                   "write the line as a row of its own and its parameters below it, for "
                   "instance:</p>\n<pre class=\"listing\">" + e("\n".join(listing)) + "</pre>\n")
    return page(f"{f['name']} (function {f['no']})", "".join(out))


def overview(funcs):
    out = ["<h1>Functions</h1>\n<p>Every program line calls one of these functions. Choose "
           "<b>Edit, Add</b>, pick the function in the list and fill in its dialog. "
           "CT Bus Connect and Prototype are listed only when all functions are shown.</p>\n"]
    for key, title, what in FAMILIES:
        members = [f for f in funcs if f["family"] == key]
        out.append(f"<h2 id=\"{key}\">{e(title)}</h2>\n<p>Functions that {e(what)}.</p>\n<ul>\n")
        for f in members:
            out.append(f"<li><a href=\"{file_name(f)}\">{e(f['name'])}</a> &mdash; "
                       f"{e(f['purpose'].split('. ')[0].rstrip('.'))}.</li>\n")
        out.append("</ul>\n")
    return page("Functions", "".join(out))


def index_page(funcs):
    entries = []
    for raw in open(os.path.join(SRC, "index.txt"), encoding="utf-8"):
        raw = raw.rstrip("\n")
        if raw.strip() and not raw.startswith("#"):
            text, _, target = raw.rpartition(" -> ")
            entries.append((text, target))
    for f in funcs:
        entries.append((f["name"], file_name(f)))
        for kw, _ in f["kws"]:
            if re.search(r"[=A-Za-z]", kw):
                entries.append((f"{kw} ({f['name']})", file_name(f) + "#line"))
    entries.sort(key=lambda t: (t[0].lower(), t[0]))
    body = ["<h1>Index</h1>\n<ul>\n"]
    body += [f"<li><a href=\"{t}\">{e(x)}</a></li>\n" for x, t in entries]
    body.append("</ul>\n")
    return page("Index", "".join(body))


def main():
    funcs = read_functions()
    numbers = [f["no"] for f in funcs]
    if len(set(numbers)) != len(numbers):
        raise SystemExit("a function is described twice")
    for f in funcs:
        if f["family"] not in [k for k, _, _ in FAMILIES] or not f["example"]:
            raise SystemExit(f"function {f['no']}: family or example missing")
        with open(os.path.join(OUT, file_name(f)), "w", encoding="utf-8") as out:
            out.write(function_page(f))
    with open(os.path.join(OUT, "functions.html"), "w", encoding="utf-8") as out:
        out.write(overview(sorted(funcs, key=lambda f: f["no"])))
    with open(os.path.join(OUT, "keywords.html"), "w", encoding="utf-8") as out:
        out.write(index_page(funcs))
    print(f"{len(funcs)} function pages")


if __name__ == "__main__":
    main()

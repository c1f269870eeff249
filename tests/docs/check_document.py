#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
"""Holds a Markdown document against the programs and files that it shows.

usage: check_document.py --project FOLDER [--program FILE]... [--write] DOCUMENT...

Every fenced block says what it is, by its first word and the words behind it,
in the fence's own line or in a comment in the line above it:

  ```console                   is run: lines that begin with "$ " are commands (a
                               backslash at the end goes on), the lines below each
                               are what it prints, on both streams, byte for byte
  ```csv file=konto.csv        is written to that file before what follows is run;
                               encoding=latin1 where it is not to be UTF-8
  ```cpp quote=src/main.cpp    stands in that file of the project; a line of "..."
                               alone, or "// ...", stands for lines left out
  ```xml checked=tests/x.cpp   is held by that test, which names the document
  ```json not-run              is neither, and says so

Any other block is an error, as is a link to a file that is not there. A document's
blocks run in one temporary folder with the programs on the path, and with the
project's "data" and "examples" beside them; the commands of a block share a shell.
Where a program prints today's date, the document may have any day in the same form.

--write puts what the programs print into the document, to be read line by line.
"""
import argparse
import datetime
import os
import pathlib
import re
import subprocess
import sys
import tempfile

FENCE = re.compile(r"^(\s*)(```+)\s*(.*)$")
COMMENT = re.compile(r"^\s*<!--\s*(.*?)\s*-->\s*$")
LINK = re.compile(r"\]\(([^)#\s]+)(?:#[^)]*)?\)")
LEFT_OUT = {"...", "// ...", "# ...", "…", "// …", "# …"}
MARK = "\x01end of command\x01"


class Block:
    """A fenced block: where it begins, what it is, and its lines."""

    def __init__(self, start, info, comment, lines):
        self.start = start  # index of its first line in the document
        self.lines = lines
        self.language, *words = info.split() or [""]
        self.attributes = dict(word.partition("=")[::2] for word in words + comment.split())

    @property
    def end(self):
        return self.start + len(self.lines)


def blocks_of(text_lines):
    found, opened = [], None
    for number, line in enumerate(text_lines):
        fence = FENCE.match(line)
        if opened is None and fence:
            above = COMMENT.match(text_lines[number - 1]) if number else None
            opened = (number + 1, fence.group(3), above.group(1) if above else "", fence.group(2))
        elif opened is not None and line.strip() == opened[3]:
            found.append(Block(*opened[:3], text_lines[opened[0] : number]))
            opened = None
    if opened is not None:
        raise ValueError(f"the block that begins in line {opened[0]} has no end")
    return found


def commands_of(block):
    """Pairs of the lines of a command and the lines that it is to print."""
    steps, going_on = [], False
    for line in block.lines:
        if going_on or line.startswith("$ "):
            if not going_on:
                steps.append(([], []))
            steps[-1][0].append(line)
            going_on = line.endswith("\\")
        elif not steps:
            raise ValueError("does not begin with a command")
        else:
            steps[-1][1].append(line)
    if not steps:
        raise ValueError("has no command")
    return steps


def run(steps, folder, environment):
    """What each step prints."""
    script = []
    for command, _ in steps:
        script.append("\n".join([command[0][2:]] + command[1:]))
        script.append(f"__status=$?; printf '%s' '{MARK}'; (exit $__status)")
    shell = subprocess.run(["bash", "-c", "\n".join(script)], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                           stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=120, check=False)
    printed = shell.stdout.decode("utf-8", "backslashreplace").split(MARK)
    if len(printed) != len(steps) + 1:
        raise ValueError("a command ended the shell:\n" + "\n".join(printed))
    return [text.splitlines() for text in printed[:-1]]


def same_but_for_today(printed, expected, days):
    """Whether the lines agree, any day standing for today's."""
    pattern = re.escape("\n".join(printed))
    for day in days:
        pattern = pattern.replace(re.escape(day.isoformat()), r"\d{4}-\d\d-\d\d")
        pattern = pattern.replace(re.escape(day.strftime("%d.%m.%Y")), r"\d\d\.\d\d\.\d{4}")
    return re.fullmatch(pattern, "\n".join(expected)) is not None


def utc_day():
    return datetime.datetime.now(datetime.timezone.utc).date()


def stands_in(lines, file_lines):
    """Whether the lines, part by part and each in one piece, stand in the file. Common indentation counts for nothing."""
    parts = [[]]
    for line in lines:
        if line.strip() in LEFT_OUT:
            parts.append([])
        else:
            parts[-1].append(line)
    at = 0
    for part in parts:
        while part and not part[-1].strip():
            part.pop()
        while part and not part[0].strip():
            part.pop(0)
        if not part:
            continue
        for start in range(at, len(file_lines) - len(part) + 1):
            if dedented(file_lines[start : start + len(part)]) == dedented(part):
                at = start + len(part)
                break
        else:
            return False
    return any(parts)


def dedented(lines):
    full = [line for line in lines if line.strip()]
    margin = min((len(line) - len(line.lstrip()) for line in full), default=0)
    return [line[margin:].rstrip() for line in lines]


class Document:
    def __init__(self, path, project, programs, write):
        self.path = path
        self.project = project
        self.programs = programs
        self.write = write
        self.lines = path.read_text(encoding="utf-8").splitlines()
        self.errors = []
        self.rewritten = []  # (block, new lines), in order
        self.days = {utc_day()}  # that were today; what stamps a store may be shown after midnight

    def complain(self, line, text):
        self.errors.append(f"{self.path.relative_to(self.project)}:{line}: {text}")

    def check(self):
        try:
            blocks = blocks_of(self.lines)
        except ValueError as error:
            self.complain(len(self.lines), error)
            return self.errors
        self.check_links(blocks)
        with tempfile.TemporaryDirectory(prefix="document-") as name:
            folder = pathlib.Path(name)
            environment = self.prepare(folder)
            for block in blocks:
                self.check_block(block, folder / "work", environment)
        if self.write and self.rewritten:
            for block, lines in reversed(self.rewritten):
                self.lines[block.start : block.end] = lines
            self.path.write_text("\n".join(self.lines) + "\n", encoding="utf-8")
        return self.errors

    def prepare(self, folder):
        for part in ("bin", "home", "work"):
            (folder / part).mkdir()
        for program in self.programs:
            (folder / "bin" / program.name).symlink_to(program)
        for beside in ("data", "examples"):
            if (self.project / beside).is_dir():
                (folder / "work" / beside).symlink_to(self.project / beside)
        kept = {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        return kept | {"PATH": f"{folder}/bin:/usr/bin:/bin", "HOME": f"{folder}/home", "TMPDIR": str(folder),
                       "LC_ALL": "C.UTF-8", "TZ": "UTC"}

    def check_block(self, block, folder, environment):
        attributes = block.attributes
        if "not-run" in attributes:
            return
        if "checked" in attributes:
            test = self.project / attributes["checked"]
            if not test.is_file() or self.path.name not in test.read_text(encoding="utf-8"):
                self.complain(block.start, f"{attributes['checked']} is no test that names this document")
        elif "quote" in attributes:
            quoted = self.project / attributes["quote"]
            if not quoted.is_file():
                self.complain(block.start, f"there is no {attributes['quote']}")
            elif not stands_in(block.lines, quoted.read_text(encoding="utf-8").splitlines()):
                self.complain(block.start, f"these lines do not stand in {attributes['quote']}")
        elif "file" in attributes:
            text = "".join(line + "\n" for line in block.lines)
            target = folder / attributes["file"]
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(text.encode(attributes.get("encoding", "utf-8")))
        elif block.language == "console":
            self.check_console(block, folder, environment)
        else:
            self.complain(block.start, "the block is not marked: console, file=, quote=, checked= or not-run")

    def check_console(self, block, folder, environment):
        try:
            steps = commands_of(block)
            printed = run(steps, folder, environment)
            self.days.add(utc_day())
        except ValueError as error:
            self.complain(block.start, f"the block {error}")
            return
        line, lines, differs = block.start + 1, [], False
        for (command, expected), output in zip(steps, printed):
            agrees = same_but_for_today(output, expected, self.days)
            lines += command + (expected if agrees else output)
            differs = differs or not agrees
            if not agrees and not self.write:
                self.complain(line, "\n".join([command[0][2:], "-- printed:", *output, "-- the document has:", *expected]))
            line += len(command) + len(expected)
        if differs:
            self.rewritten.append((block, lines))

    def check_links(self, blocks):
        inside = {number for block in blocks for number in range(block.start, block.end)}
        for number, line in enumerate(self.lines):
            for target in LINK.findall(line) if number not in inside else []:
                if not re.match(r"[a-z]+:", target) and not (self.path.parent / target).exists():
                    self.complain(number + 1, f"the link leads nowhere: {target}")


def main(arguments=None):
    parser = argparse.ArgumentParser()
    parser.add_argument("--project", type=pathlib.Path, required=True)
    parser.add_argument("--program", type=pathlib.Path, action="append", default=[])
    parser.add_argument("--write", action="store_true")
    parser.add_argument("documents", type=pathlib.Path, nargs="+")
    options = parser.parse_args(arguments)
    project = options.project.resolve()
    programs = [program.resolve() for program in options.program]
    errors = []
    for path in options.documents:
        errors += Document(path.resolve(), project, programs, options.write).check()
    if errors:
        print("\n\n".join(errors))
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main())

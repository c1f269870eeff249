#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
"""The checker of documents: what it lets pass, and what it finds."""
import contextlib
import datetime
import io
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True  # the sources stay as they are
import check_document  # noqa: E402


class CheckDocumentTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.project = pathlib.Path(folder.name)
        (self.project / "main.cpp").write_text("int main() {\n    first();\n    second();\n    third();\n}\n")
        (self.project / "test.cpp").write_text('read("docs/page.md");\n')

    def check(self, text, *options):
        self.page = self.project / "page.md"
        self.page.write_text(text, encoding="utf-8")
        with contextlib.redirect_stdout(io.StringIO()) as printed:
            status = check_document.main(["--project", str(self.project), *options, str(self.page)])
        return status, printed.getvalue()

    def assert_passes(self, text):
        self.assertEqual(self.check(text), (0, ""))

    def assert_fails(self, text, *parts):
        status, printed = self.check(text)
        self.assertEqual(status, 1)
        for part in parts:
            self.assertIn(part, printed)

    def test_a_command_prints_what_stands_below_it(self):
        self.assert_passes("```console\n$ echo eins; echo zwei >&2\neins\nzwei\n$ echo 'Grün' \\\n  drei\nGrün drei\n```\n")

    def test_another_output_is_named_with_its_line(self):
        self.assert_fails("# Page\n\n```console\n$ true\n$ echo eins\nzwei\n```\n", "page.md:5:", "printed:\neins")

    def test_output_that_the_document_lacks_is_found(self):
        self.assert_fails("```console\n$ echo eins\n```\n", "printed:\neins")

    def test_output_that_is_not_printed_is_found(self):
        self.assert_fails("```console\n$ true\neins\n```\n", "page.md:2:")

    def test_blanks_at_the_end_of_a_line_count(self):
        self.assert_fails("```console\n$ echo 'eins '\neins\n```\n", "page.md:2:")

    def test_commands_share_a_shell_and_its_status(self):
        self.assert_passes("```console\n$ cd /; pwd\n/\n$ pwd; false\n/\n$ echo $?\n1\n```\n")

    def test_a_command_that_ends_the_shell_is_found(self):
        self.assert_fails("```console\n$ exit 0\n$ echo eins\neins\n```\n", "ended the shell")

    def test_a_block_of_commands_begins_with_one(self):
        self.assert_fails("```console\necho eins\n```\n", "does not begin with a command")

    def test_files_are_there_for_the_blocks_below(self):
        self.assert_passes("```text file=a/b.txt\nä\n```\n```text file=l.txt encoding=latin1\nä\n```\n"
                           "```console\n$ cat a/b.txt; wc -c < a/b.txt; wc -c < l.txt\nä\n3\n2\n```\n")

    def test_today_may_be_any_day_in_the_same_form(self):
        self.assert_passes("```console\n$ date -u +%F/%d.%m.%Y\n2024-02-29/01.01.2000\n```\n")
        self.assert_fails("```console\n$ date -u +%F\n29.02.2024\n```\n", "page.md:2:")

    def test_another_day_is_another_output(self):
        yesterday = datetime.datetime.now(datetime.timezone.utc).date() - datetime.timedelta(days=2)
        self.assert_fails(f"```console\n$ echo {yesterday}\n2024-02-29\n```\n", "page.md:2:")

    def test_quoted_lines_stand_in_their_file(self):
        self.assert_passes("```cpp quote=main.cpp\nfirst();\nsecond();\n```\n")
        self.assert_passes("```cpp quote=main.cpp\nint main() {\n    // ...\n    third();\n```\n")

    def test_quoted_lines_that_differ_are_found(self):
        self.assert_fails("```cpp quote=main.cpp\nfirst();\nthird();\n```\n", "do not stand in main.cpp")
        self.assert_fails("```cpp quote=main.cpp\nthird();\n// ...\nfirst();\n```\n", "do not stand in main.cpp")
        self.assert_fails("```cpp quote=main.cpp\n```\n", "do not stand in main.cpp")
        self.assert_fails("```cpp quote=gone.cpp\nfirst();\n```\n", "there is no gone.cpp")

    def test_a_block_may_be_held_by_another_test(self):
        self.assert_passes("<!-- checked=test.cpp -->\n```xml\n<a/>\n```\n")
        self.assert_fails("```xml checked=main.cpp\n<a/>\n```\n", "main.cpp is no test")

    def test_a_block_that_is_neither_says_so(self):
        self.assert_passes("```json not-run\n{}\n```\n")
        self.assert_passes("<!-- not-run -->\n```\n{}\n```\n")
        self.assert_fails("# Page\n\n```json\n{}\n```\n", "page.md:3: the block is not marked")
        self.assert_fails("```\n{}\n```\n", "not marked")

    def test_a_block_without_an_end_is_found(self):
        self.assert_fails("```json not-run\n{}\n", "line 1 has no end")

    def test_links_lead_somewhere(self):
        self.assert_passes("[a](main.cpp) [b](https://example.org/x) [c](main.cpp#top) [d](#top)\n")
        self.assert_fails("\n[a](gone.md)\n", "page.md:2: the link leads nowhere: gone.md")

    def test_writing_puts_in_what_is_printed(self):
        before = "# P\n\n```console\n$ echo eins\nzwei\ndrei\n$ echo vier\nvier\n```\n\n```console\n$ date -u +%F\n2024-02-29\n```\n"
        self.assertEqual(self.check(before, "--write")[0], 0)
        self.assertEqual(self.page.read_text(), before.replace("zwei\ndrei", "eins"))


if __name__ == "__main__":
    unittest.main()

"""The tutorial as its readers type it: each block of code runs, and prints what stands below it."""

import contextlib
import io
import pathlib
import re

import pytest

from test_package import checked_by_mypy

TUTORIAL = pathlib.Path(__file__).parents[2] / "docs" / "tutorial.md"
CHAPTER = re.compile(r"^## (.+)$", re.MULTILINE)
BLOCK = re.compile(r"^```python\n(?P<code>.*?)^```\n(?:\n```text\n(?P<output>.*?)^```\n)?", re.MULTILINE | re.DOTALL)


def chapters():
    """(title, blocks) of each chapter that has code, a block being its line, its code and what it prints."""
    text = TUTORIAL.read_text(encoding="utf-8")
    starts = [*CHAPTER.finditer(text), None]
    for start, following in zip(starts, starts[1:]):
        end = following.start() if following else len(text)
        blocks = [
            (text.count("\n", 0, block.start("code")), block["code"], block["output"] or "")
            for block in BLOCK.finditer(text, start.end(), end)
        ]
        if blocks:
            yield pytest.param(blocks, id=start[1])


@pytest.mark.parametrize("blocks", chapters())
def test_each_block_prints_what_stands_below_it(blocks, tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)  # files that a reader makes
    names = {}
    for line, code, output in blocks:
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            # Empty lines in front, so that a failure tells its line in the tutorial.
            exec(compile("\n" * line + code, TUTORIAL, "exec"), names)
        assert printed.getvalue() == output, f"of the block in line {line}"


@pytest.mark.parametrize("blocks", chapters())
def test_a_type_checker_finds_nothing_in_a_chapter(blocks, tmp_path):
    assert checked_by_mypy(tmp_path, "\n".join(code for _, code, _ in blocks)) == []


def test_no_output_stands_without_its_code():
    text = TUTORIAL.read_text(encoding="utf-8")
    shown = [block for block in BLOCK.finditer(text) if block["output"] is not None]
    assert len(shown) == text.count("```text\n") > 0

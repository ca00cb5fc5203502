"""The examples of the pages, tried."""
import doctest
import re
import shutil

import pytest

from conftest import ROOT

PAGES = ["README.md", "docs/python.md"]


@pytest.mark.parametrize("page", PAGES)
def test_the_examples_of_the_pages_print_what_is_shown(page, tmp_path, monkeypatch):
    text = (ROOT / page).read_text()
    blocks = re.findall(r"^```pycon\n(.*?)^```", text, re.MULTILINE | re.DOTALL)
    assert blocks
    shutil.copytree(ROOT / "examples", tmp_path / "examples")
    monkeypatch.chdir(tmp_path)
    parser = doctest.DocTestParser()
    test = parser.get_doctest("\n".join(blocks), {}, page, page, 0)
    runner = doctest.DocTestRunner(optionflags=doctest.ELLIPSIS)
    output = []
    runner.run(test, out=output.append)
    assert runner.failures == 0, "".join(output)
    assert runner.tries >= len(blocks)

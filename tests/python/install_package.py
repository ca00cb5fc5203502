"""Installs the package with pip, without a network, into virtual environments of its own, and uses
it there: an empty one, and one as the page of the module has it made. Called with the project's
folder and a build whose module is packed as it is. Ends with 77 where the interpreter makes no
virtual environments."""
import importlib.util
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
import venv

USE = """
import sys, nga
assert nga.__file__.startswith(sys.prefix), nga.__file__
doc = nga.open(sys.argv[1])
assert "steel" in doc.materials or len(doc.materials) > 0
doc.Material(name="a new one").Elastic(table=((210e3, 0.3),))
doc.save_as("copy.nga")
assert nga.open("copy.nga").to_json() == doc.to_json()
assert "numpy" not in sys.modules
print("installed as", nga.__file__)
"""


def main(root, build):
    if importlib.util.find_spec("ensurepip") is None:
        print("skipped: this interpreter makes no virtual environments; python3-venv is missing")
        return 77
    outside = {name: value for name, value in os.environ.items()
               if not name.startswith(("PYTHONPATH", "PIP_"))}
    # Nothing listens there: whatever asked for the network would fail.
    outside |= {"http_proxy": "http://127.0.0.1:9", "https_proxy": "http://127.0.0.1:9",
                "NGA_PYTHON_BUILD_DIR": str(build)}
    with tempfile.TemporaryDirectory() as folder:
        place = pathlib.Path(folder)
        venv.create(place / "env", with_pip=True)
        python = str(place / "env" / "bin" / "python")
        subprocess.run([python, "-m", "pip", "install", "--no-index", "--no-cache-dir",
                        "--disable-pip-version-check", "-q", "."],
                       cwd=root, check=True, env=outside)
        if not list((place / "env").glob("lib/python3*/site-packages/nga/_made.pyi")):
            sys.exit("the stubs were not installed")
        use(python, root, place, outside)
        use(as_the_page_says(root, place, outside), root, place, outside)
    return 0


def use(python, root, place, environment):
    subprocess.run([python, "-c", USE, str(root / "examples" / "bracket.json")], cwd=place,
                   check=True, env=environment)


def as_the_page_says(root, place, environment):
    """Runs the page's commands, with an environment that stands elsewhere."""
    (block,) = re.findall(r"^```sh\n(.*?)^```", (root / "docs" / "python.md").read_text(),
                          re.MULTILINE | re.DOTALL)
    here = shlex.quote(str(place / "page"))
    text = re.sub(r"^python3 ", shlex.quote(sys.executable) + " ", block, flags=re.MULTILINE)
    text = re.sub(r"(?<= )env$|^env(?=/)", lambda _: here, text, flags=re.MULTILINE)
    if text.count(here) != 2:
        sys.exit("the page makes no environment env and installs into it")
    subprocess.run(["sh", "-ec", text], cwd=root, check=True, env=environment)
    return str(place / "page" / "bin" / "python")


sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()))

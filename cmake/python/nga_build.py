"""The build backend of the Python package: runs CMake, and packs what it built into a wheel. It
needs nothing from the network, so that `pip install .` works without one."""
import base64
import hashlib
import os
import pathlib
import subprocess
import sys
import sysconfig
import tempfile
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
NAME, VERSION = "nga", "0.1.0"
METADATA = f"""Metadata-Version: 2.1
Name: {NAME}
Version: {VERSION}
Summary: Attribute models of finite-element pre-processors
Requires-Python: >=3.11
Provides-Extra: tables
Requires-Dist: numpy; extra == 'tables'
"""


def _tag() -> str:
    python = f"cp{sys.version_info.major}{sys.version_info.minor}"
    platform = sysconfig.get_platform().replace("-", "_").replace(".", "_")
    return f"{python}-{python}-{platform}"


def _wheel_text() -> str:
    return f"Wheel-Version: 1.0\nGenerator: nga_build\nRoot-Is-Purelib: false\nTag: {_tag()}\n"


def _run(*command: str) -> None:
    print("+", " ".join(command), flush=True)
    subprocess.run(command, check=True, cwd=ROOT)


def _build(folder: str) -> pathlib.Path:
    """Builds the package for the interpreter that runs this; NGA_PYTHON_BUILD_DIR keeps the build
    for the next time, or is a build that somebody else has configured and that stays as it is."""
    build = os.environ.get("NGA_PYTHON_BUILD_DIR", folder)
    ours = pathlib.Path(build) / "nga_build.txt"
    if ours.exists() or not (pathlib.Path(build) / "CMakeCache.txt").exists():
        _configure(build)
        ours.write_text("configured to build a wheel\n")
    _run("cmake", "--build", build, "--target", "nga_python")
    return pathlib.Path(build) / "python"


def _configure(build: str) -> None:
    # In a virtual environment the interpreter is found by its path, its headers by its home.
    _run("cmake", "-S", str(ROOT), "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
         "-DCMAKE_CXX_FLAGS_RELEASE=-O2", "-DNGA_BUILD_TESTS=OFF", "-DNGA_BUILD_BENCH=OFF",
         "-DNGA_UNITY=ON", "-DNGA_BUILD_PYTHON=ON", f"-DPython3_EXECUTABLE={sys.executable}",
         f"-DPython3_INCLUDE_DIR={sysconfig.get_path('include', 'posix_prefix', _base())}")


def _base() -> dict[str, str]:
    return {"base": sys.base_prefix, "platbase": sys.base_prefix,
            "installed_base": sys.base_prefix, "installed_platbase": sys.base_prefix}


def _packed(files: dict[str, bytes], folder: str, name: str) -> str:
    info = f"{NAME}-{VERSION}.dist-info"
    files = files | {f"{info}/METADATA": METADATA.encode(), f"{info}/WHEEL": _wheel_text().encode()}
    record = ""
    with zipfile.ZipFile(pathlib.Path(folder) / name, "w", zipfile.ZIP_DEFLATED) as archive:
        for path, content in files.items():
            digest = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b"=")
            record += f"{path},sha256={digest.decode()},{len(content)}\n"
            archive.writestr(path, content)
        archive.writestr(f"{info}/RECORD", record + f"{info}/RECORD,,\n")
    return name


def pack(package: pathlib.Path, folder: str) -> str:
    """Makes the wheel of a package folder, and gives its name."""
    files = {f"nga/{path.name}": path.read_bytes() for path in sorted(package.iterdir())
             if path.suffix in (".py", ".pyi", ".so") or path.name == "py.typed"}
    extension = f"_nga{sysconfig.get_config_var('EXT_SUFFIX')}"
    if f"nga/{extension}" not in files:
        sys.exit(f"{extension} was not built: are python3-dev and pybind11-dev installed, for the "
                 f"interpreter {sys.executable}?")
    return _packed(files, folder, f"{NAME}-{VERSION}-{_tag()}.whl")


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    with tempfile.TemporaryDirectory() as scratch:
        return pack(_build(scratch) / "nga", wheel_directory)


def prepare_metadata_for_build_wheel(metadata_directory, config_settings=None):
    info = pathlib.Path(metadata_directory) / f"{NAME}-{VERSION}.dist-info"
    info.mkdir()
    (info / "METADATA").write_text(METADATA)
    (info / "WHEEL").write_text(_wheel_text())
    return info.name


def build_sdist(sdist_directory, config_settings=None):
    sys.exit("the package is built from the project's folder; there is no source distribution")

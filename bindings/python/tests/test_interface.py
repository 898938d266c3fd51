"""What the package says of itself is true: the C header, docstrings, types, documents."""

from __future__ import annotations

import ctypes
import doctest
import importlib
import os
import pkgutil
import re
import subprocess
import sys
from pathlib import Path
from typing import Any

import pytest
from conftest import ROOT, program

import vorlane as vl
from vorlane import _capi

HEADER = (ROOT / "bindings" / "c" / "vorlane_c.h").read_text()
CODE = re.sub(r"/\*.*?\*/", "", HEADER, flags=re.S)

ENUMS = set(re.findall(r"typedef enum (\w+)", CODE))
SCALARS = {
    "void": None,
    "int": ctypes.c_int,
    "double": ctypes.c_double,
    "size_t": ctypes.c_size_t,
    "uint32_t": ctypes.c_uint32,
    "uint64_t": ctypes.c_uint64,
    "int32_t": ctypes.c_int32,
    "int64_t": ctypes.c_int64,
    **{enum: ctypes.c_int for enum in ENUMS},
}
STRUCTS: dict[str, Any] = {
    "vorlane_" + re.sub(r"(?<!^)(?=[A-Z])", "_", name).lower(): struct
    for name, struct in vars(_capi).items()
    if isinstance(struct, type) and issubclass(struct, ctypes.Structure)
}


def is_alike(declared: str, taken: Any) -> bool:
    """Whether a C type is passed as a ctypes type is."""
    kind = declared.replace("const ", "").replace("struct ", "").strip()
    base, stars = kind.rstrip("* "), kind.count("*")
    if stars == 0:
        return bool(SCALARS.get(base, STRUCTS.get(base, base)) is taken)
    if taken is ctypes.c_void_p:  # an address, of an array or of an object that hides what it is
        return True
    if base == "char" and stars == 1:
        return bool(taken is ctypes.c_char_p)
    if not (isinstance(taken, type) and hasattr(taken, "_type_")):
        return False
    return is_alike((base + " " + "*" * (stars - 1)).strip(), taken._type_)


def declared_structs() -> dict[str, list[tuple[str, str]]]:
    found = {}
    for name, body in re.findall(r"typedef struct (\w+) \{(.*?)\}", CODE, flags=re.S):
        fields = re.findall(r"([\w ]+?[ *]+)(\w+);", body)
        found[name] = [(field, kind.strip()) for kind, field in fields]
    return found


def test_structs_are_those_of_the_header() -> None:
    declared = declared_structs()
    assert set(declared) == set(STRUCTS)
    for name, fields in declared.items():
        taken = dict(STRUCTS[name]._fields_)
        assert list(taken) == [field for field, _ in fields], name
        for field, kind in fields:
            assert is_alike(kind, taken[field]), (name, field)


def test_functions_are_those_of_the_header() -> None:
    pattern = r"VORLANE_C_API ([\w ]+?[ *]+)(\w+)\((.*?)\);"
    declared = {name: (kind, taken) for kind, name, taken in re.findall(pattern, CODE, flags=re.S)}
    assert set(declared) == set(_capi.FUNCTIONS)
    for name, (kind, parameters) in declared.items():
        result, arguments = _capi.FUNCTIONS[name]
        assert is_alike(kind, result), name
        kinds = [re.sub(r"\w+$", "", one.strip()) for one in parameters.split(",") if one != "void"]
        assert len(kinds) == len(arguments), name
        for one, argument in zip(kinds, arguments):
            assert is_alike(one, argument), (name, one)


def test_versions_agree() -> None:
    assert f"#define VORLANE_ABI_VERSION {_capi.ABI_VERSION}\n" in HEADER
    told = subprocess.run([program(), "--version"], capture_output=True, text=True).stdout
    assert told.split() == ["Vorlane", vl.__version__]


def modules() -> list[str]:
    found = [module.name for module in pkgutil.walk_packages(vl.__path__, "vorlane.")]
    return ["vorlane", *(name for name in found if not name.endswith(".libvorlane_c"))]


def test_docstrings() -> None:
    tried = 0
    for name in modules():
        module = importlib.import_module(name)
        outcome = doctest.testmod(module, optionflags=doctest.IGNORE_EXCEPTION_DETAIL)
        assert outcome.failed == 0, name
        tried += outcome.attempted
    assert tried > 10


def test_everything_public_is_told_of() -> None:
    for name in vl.__all__:
        public = getattr(vl, name)
        if isinstance(public, str):
            continue
        assert public.__doc__, name
        for method, value in vars(public).items():
            if not method.startswith("_") and callable(value):
                assert value.__doc__, (name, method)


def test_types(tmp_path: Path) -> None:
    pytest.importorskip("mypy")
    sources = Path(vl.__file__).parents[1]
    configuration = Path(__file__).parents[1] / "pyproject.toml"
    searched = {} if sources.name == "site-packages" else {"MYPYPATH": str(sources)}
    done = subprocess.run(
        [sys.executable, "-m", "mypy", "--config-file", str(configuration), "-p", "vorlane"],
        env={**os.environ, **searched},
        capture_output=True,
        text=True,
        cwd=tmp_path,
    )
    assert done.returncode == 0, done.stdout


def with_examples(folder: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    (folder / "examples").symlink_to(ROOT / "examples")
    monkeypatch.chdir(folder)


def test_the_document(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    pytest.importorskip("pandas")
    with_examples(tmp_path, monkeypatch)
    outcome = doctest.testfile(
        str(ROOT / "docs" / "python.md"),
        module_relative=False,
        encoding="utf-8",
        optionflags=doctest.IGNORE_EXCEPTION_DETAIL,
    )
    assert outcome.failed == 0 and outcome.attempted > 20


def test_the_notebook(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    client = pytest.importorskip("nbclient")
    nbformat = pytest.importorskip("nbformat")
    with_examples(tmp_path, monkeypatch)
    notebook = nbformat.read(ROOT / "docs" / "python.ipynb", as_version=4)
    client.NotebookClient(notebook, kernel_name="python3").execute(cwd=str(tmp_path))
    shown = [set(output.get("data", {})) for cell in notebook.cells for output in cell.get("outputs", [])]
    assert any("image/png" in kinds for kinds in shown)
    assert sum("text/html" in kinds for kinds in shown) >= 3
    assert not any(output.output_type == "error" for cell in notebook.cells for output in cell.get("outputs", []))

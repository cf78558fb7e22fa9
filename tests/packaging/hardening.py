"""How a binary is protected against what it reads, as far as the file tells."""
import subprocess

# The instruction (endbr64) that control-flow protection puts at the target of every indirect jump, on x86-64.
LANDING = bytes.fromhex("f30f1efa")
X86_64 = "Advanced Micro Devices X86-64"


def _readelf(*words):
    return subprocess.run(["readelf", "-W", *words], check=True, capture_output=True, text=True).stdout


def faults(path, asserts=True):
    """Each a sentence; an empty list for a binary that is built with all of it. `asserts` is for one that is large enough to use
    containers of the standard library and functions of the C library that are checked."""
    head, dynamic, segments = _readelf("-h", path), _readelf("-d", path), _readelf("-l", path)
    symbols = _readelf("--dyn-syms", path)
    with open(path, "rb") as file:
        content = file.read()
    if "Type:" in head and "DYN" not in head:
        yield "it lies at a fixed address"
    if "GNU_RELRO" not in segments or "BIND_NOW" not in dynamic:
        yield "its relocations can be written"
    if "GNU_STACK" not in segments or "RWE" in segments:
        yield "its stack can be run"
    if "__stack_chk_fail" not in symbols:
        yield "its stack is not protected"
    if asserts and "__glibcxx_assert_fail" not in symbols:
        yield "its containers are not checked"
    if asserts and "_chk@" not in symbols:
        yield "its calls of the C library are not checked"
    if X86_64 in head and content.count(LANDING) < 20:
        yield "its flow of control is not protected"

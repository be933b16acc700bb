#!/usr/bin/env python3
"""Runs lumeric over the public VRML 1.0 corpus and checks each result.

For every corpus file (plain VRML 1.0, so lumeric must pass it through as the
same scene):

- lumeric must not crash, hang or trip a sanitizer, and its exit status must
  agree with its messages (1 exactly when an "error: " line was printed);
- the messages must equal tests/corpus/expected/<file>.messages (no such file
  means: no messages at all);
- without an error, the output must start with lumeric's header lines, load
  in the independent reader (vrml1check read) and describe the same scene as
  the file's first root node (vrml1check compare ... --first-b), when the
  independent reader accepts the original;
- with an error, whatever partial output was written must behave as
  tests/corpus/expected/<file>.output says: "none" (nothing written), "loads"
  (the independent reader accepts it) or "unreadable".

The corpus is found at run time: $LUMERIC_CORPUS_DIR, else the first
shared/vrml1-corpus found walking up from the source tree. Without it the
run is skipped (exit status 77).

--refresh rewrites the expectation files from what lumeric does now, for
review with git diff; tests/corpus/refresh.sh drives it.
"""

import argparse
import difflib
import os
import pathlib
import subprocess
import sys
import tempfile

SKIP = 77
TIMEOUT_SECONDS = 300
HERE = pathlib.Path(__file__).resolve().parent
EXPECTED_DIR = HERE / "expected"

# Sanitizer reports get their own exit statuses, so they can never pass for
# lumeric's "an error was posted" status 1. Leak detection stays on for
# lumeric; vrml1check turns it off for itself (Coin is not instrumented), and
# its environment must not turn it back on.
LUMERIC_ENV = {
    "ASAN_OPTIONS": "exitcode=99:abort_on_error=0:detect_leaks=1",
    "UBSAN_OPTIONS": "print_stacktrace=1:halt_on_error=1:exitcode=98",
}
READER_ENV = {
    "ASAN_OPTIONS": "exitcode=99:abort_on_error=0",
    "UBSAN_OPTIONS": "print_stacktrace=1:halt_on_error=1:exitcode=98",
}
SANITIZER_MARKS = (
    "ERROR: AddressSanitizer",
    "ERROR: LeakSanitizer",
    "runtime error:",
    "UndefinedBehaviorSanitizer",
)


def find_corpus(source_dir):
    """Returns the corpus directory, or None."""
    configured = os.environ.get("LUMERIC_CORPUS_DIR")
    if configured:
        path = pathlib.Path(configured)
        return path if path.is_dir() else None
    start = pathlib.Path(source_dir).resolve()
    for directory in (start, *start.parents):
        candidate = directory / "shared" / "vrml1-corpus"
        if candidate.is_dir():
            return candidate
    return None


def run(command, sanitizer_env, cwd=None, timeout=TIMEOUT_SECONDS):
    env = dict(os.environ)
    env.update(sanitizer_env)
    try:
        done = subprocess.run(command, cwd=cwd, env=env, capture_output=True,
                              timeout=timeout)
    except subprocess.TimeoutExpired:
        return None, "", f"timed out after {timeout} s"
    return (done.returncode, done.stdout.decode("utf-8", "replace"),
            done.stderr.decode("utf-8", "replace"))


def read_text(path):
    return path.read_text(encoding="utf-8") if path.exists() else None


class FileCheck:
    """Runs and judges one corpus file; collects what went wrong."""

    def __init__(self, args, corpus, name):
        self.args = args
        self.corpus = corpus
        self.name = name
        self.problems = []
        self.notes = []

    def fail(self, text):
        self.problems.append(text)

    def reader(self, *arguments):
        code, out, err = run([self.args.vrml1check, *arguments], READER_ENV)
        if code is None or code >= 98 or code < 0 or "runtime error:" in err:
            self.fail(f"vrml1check {' '.join(arguments)} broke (status {code}):\n{err}")
        return code == 0, (out + err).strip()

    def translate(self, output):
        # Run from the corpus directory with the bare file name, so that
        # messages and the output's header name the file the same way
        # wherever the corpus lives.
        return run([self.args.lumeric, "-o", str(output), self.name], LUMERIC_ENV,
                   cwd=self.corpus)

    def check_run(self, code, err):
        """Crash, sanitizer and exit-status checks. False when the run is
        too broken to judge further."""
        if code is None:
            self.fail(err)
            return False
        if any(mark in err for mark in SANITIZER_MARKS) or code in (98, 99):
            self.fail(f"sanitizer report (exit status {code}):\n{err}")
            return False
        if code not in (0, 1):
            self.fail(f"lumeric ended with status {code}:\n{err}")
            return False
        has_error = any(line.startswith("error: ") for line in err.splitlines())
        if has_error != (code == 1):
            self.fail(f"exit status {code} does not match the messages:\n{err}")
        return True

    def check_messages(self, err):
        expected_path = EXPECTED_DIR / f"{self.name}.messages"
        expected = read_text(expected_path) or ""
        if err == expected:
            return
        diff = "".join(difflib.unified_diff(
            expected.splitlines(keepends=True), err.splitlines(keepends=True),
            f"expected/{self.name}.messages", "lumeric's messages"))
        self.fail("messages differ from the expectation "
                  "(tests/corpus/refresh.sh records new ones for review):\n" + diff)

    def output_state(self, output):
        if not output.exists() or output.stat().st_size == 0:
            return "none"
        if not self.args.vrml1check:
            return "unchecked"
        loads, _ = self.reader("read", str(output))
        return "loads" if loads else "unreadable"

    def check_partial_output(self, output):
        state = self.output_state(output)
        if state == "unchecked":
            return
        expected = (read_text(EXPECTED_DIR / f"{self.name}.output") or "").strip()
        if state != expected:
            self.fail(f"after the error the output is {state!r}, expected "
                      f"{expected or 'an expected/' + self.name + '.output file'!r}")

    def check_header(self, output):
        expected = f"#VRML V1.0 ascii\n\n#Generated by VRMLLumeric from {self.name}\n\n"
        with open(output, "rb") as stream:
            start = stream.read(len(expected.encode()))
        if start != expected.encode():
            self.fail(f"output does not start with the header lines: {start!r}")

    def check_translation(self, output):
        if not output.exists():
            self.fail("no error was posted but no output was written")
            return
        self.check_header(output)
        if not self.args.vrml1check:
            self.notes.append("independent reader not built: output not loaded")
            return
        loads, text = self.reader("read", str(output))
        if not loads:
            self.fail(f"the output does not load in the independent reader:\n{text}")
            return
        original = self.corpus / self.name
        accepted, why = self.reader("read", str(original))
        if not accepted:
            self.notes.append("the independent reader rejects the original, so "
                              "the output is not compared with it: "
                              + why.splitlines()[0])
            return
        same, text = self.reader("compare", str(output), str(original), "--first-b",
                                 "--tolerance", str(self.args.tolerance))
        if not same:
            self.fail(f"the output is not the same scene as the original's first root:\n{text}")

    def check(self):
        with tempfile.TemporaryDirectory(prefix="lumeric-corpus-") as temp:
            output = pathlib.Path(temp) / "out.wrl"
            code, _, err = self.translate(output)
            if not self.check_run(code, err):
                return
            if self.args.refresh:
                self.record(code, err, output)
                return
            self.check_messages(err)
            if code == 1:
                self.check_partial_output(output)
            else:
                if (EXPECTED_DIR / f"{self.name}.output").exists():
                    self.fail(f"expected/{self.name}.output expects an error run, "
                              "but no error was posted")
                self.check_translation(output)

    def record(self, code, err, output):
        messages = EXPECTED_DIR / f"{self.name}.messages"
        state_file = EXPECTED_DIR / f"{self.name}.output"
        EXPECTED_DIR.mkdir(exist_ok=True)
        if err:
            messages.write_text(err, encoding="utf-8")
        elif messages.exists():
            messages.unlink()
        if code == 1:
            state_file.write_text(self.output_state(output) + "\n", encoding="utf-8")
        elif state_file.exists():
            state_file.unlink()


def stale_expectations(corpus):
    """Expectation files whose corpus file no longer exists."""
    names = {path.name for path in corpus.glob("*.wrl")}
    stale = []
    for path in sorted(EXPECTED_DIR.glob("*")):
        stem = path.name.rsplit(".", 1)[0]
        if path.suffix in (".messages", ".output") and stem not in names:
            stale.append(path.name)
    return stale


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--lumeric", required=True, help="the lumeric command to test")
    parser.add_argument("--vrml1check", default="",
                        help="the independent-reader tool (empty: loading is not checked)")
    parser.add_argument("--source-dir", default=str(HERE),
                        help="where the upward search for shared/vrml1-corpus starts")
    parser.add_argument("--tolerance", type=float, default=1e-4)
    parser.add_argument("--refresh", action="store_true",
                        help="rewrite the expectation files instead of checking")
    parser.add_argument("--stale-only", action="store_true",
                        help="only check that every expectation file has its corpus file")
    parser.add_argument("files", nargs="*",
                        help="corpus file names (default: every .wrl of the corpus)")
    args = parser.parse_args()
    # lumeric runs from the corpus directory, so the tools need full paths.
    args.lumeric = os.path.abspath(args.lumeric)
    if args.vrml1check:
        args.vrml1check = os.path.abspath(args.vrml1check)
    for tool in (args.lumeric, args.vrml1check):
        if tool and not os.access(tool, os.X_OK):
            print(f"cannot run {tool}: build it first")
            return 1

    corpus = find_corpus(args.source_dir)
    if corpus is None:
        print("SKIP: VRML 1.0 corpus not found (set LUMERIC_CORPUS_DIR, or put it at "
              "shared/vrml1-corpus beside the source tree)")
        return SKIP

    if args.stale_only:
        stale = stale_expectations(corpus)
        for name in stale:
            print(f"stale expectation {name}: its corpus file is gone")
        print(f"{0 if stale else 1} passed, {1 if stale else 0} failed")
        return 1 if stale else 0

    names = args.files or sorted(path.name for path in corpus.glob("*.wrl"))
    missing = [name for name in names if not (corpus / name).is_file()]
    if missing and len(missing) == len(names):
        print(f"SKIP: not in the corpus at {corpus}: {' '.join(missing)}")
        return SKIP

    failed = 0
    for name in names:
        if name in missing:
            print(f"{name}: not in the corpus at {corpus}")
            failed += 1
            continue
        check = FileCheck(args, corpus, name)
        check.check()
        status = "FAIL" if check.problems else ("recorded" if args.refresh else "ok")
        print(f"{name}: {status}")
        for text in check.notes:
            print(f"  note: {text}")
        for text in check.problems:
            print("  " + text.replace("\n", "\n  "))
        failed += bool(check.problems)

    if not args.files:
        for name in stale_expectations(corpus):
            if args.refresh:
                (EXPECTED_DIR / name).unlink()
                print(f"removed stale expectation {name}")
            else:
                print(f"stale expectation {name}: its corpus file is gone")
                failed += 1

    print(f"{len(names) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())

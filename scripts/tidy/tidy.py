#!/usr/bin/env python3
"""tidy.py BUILD FILE-REGEX [OPTION...]: clang-tidy over the sources of a build, as many at once as there are cores.

A source without a finding is not looked at again until something that it sees has changed: its command line, the
content of a file that it includes, the checks, clang-tidy itself. Its verdict lies in the user's cache folder, and holds
in every checkout. A finding is never kept.
"""
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
VERDICTS = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "tessaloom" / "tidy"


@functools.cache
def content_hash(path):
    """Of a file as it is now; None for one that is not there."""
    try:
        return hashlib.sha256((ROOT / path).read_bytes()).hexdigest()
    except OSError:
        return None


def in_any_checkout(text):
    """A path or command line without the place of this checkout."""
    return text.replace(f"{ROOT}/", "")


class Source:
    """A source, how it is compiled, and what was thought of it."""

    def __init__(self, entry, options, version):
        self.file = entry["file"]
        self.folder = entry["directory"]
        words = shlex.split(entry["command"])
        output = words.index("-o")
        del words[output:output + 2]
        # Up to the compiler's name stand the cache and the like.
        compiler = next(at for at, word in enumerate(words) if re.search(r"(\+\+|cc)(-[\w.]+)?$", os.path.basename(word))
                        and not word.endswith("ccache"))
        self.arguments = [word for word in words[compiler + 1:] if word not in ("-c", "--", self.file)]
        self.options = options
        seen = [self.file, *self.arguments, *options, version, str(content_hash(".clang-tidy")),
                str(content_hash("scripts/tidy/own_code.cpp"))]
        key = hashlib.sha256("\0".join(map(in_any_checkout, seen)).encode()).hexdigest()
        self.verdict = VERDICTS / f"{key}.json"

    def extra_arguments(self):
        return [option.removeprefix("-extra-arg=") for option in self.options if option.startswith("-extra-arg=")]

    def is_known_to_be_clean(self):
        try:
            included = json.loads(self.verdict.read_text())
        except (OSError, ValueError):
            return False
        return all(content_hash(path) == known for path, known in included.items())

    def included_files(self):
        """All files that the compiler reads, as it names them: a rule of a makefile."""
        rule = subprocess.run(["clang++", *self.arguments, *self.extra_arguments(), "-w", "-M", self.file],
                              cwd=self.folder, capture_output=True, text=True, check=False)
        if rule.returncode != 0:
            return None
        names = shlex.split(rule.stdout.replace("\\\n", " "))[1:]
        return sorted({os.path.normpath(os.path.join(self.folder, name)) for name in names})

    def examine(self):
        """What clang-tidy says of it; empty if nothing."""
        run = subprocess.run(["clang-tidy", "-quiet", *self.options, self.file, "--", *self.arguments],
                             cwd=self.folder, capture_output=True, text=True, check=False)
        if run.returncode == 0 and not run.stdout.strip():
            return ""
        return run.stdout if run.stdout.strip() else f"{self.file}: clang-tidy failed\n{run.stderr}"

    def keep_verdict(self, included):
        hashes = {in_any_checkout(path): content_hash(in_any_checkout(path)) for path in included}
        VERDICTS.mkdir(parents=True, exist_ok=True)
        half = self.verdict.with_suffix(f".{os.getpid()}.{id(self)}")
        half.write_text(json.dumps(hashes))
        half.replace(self.verdict)


def judge(source):
    """(was looked at, what was found)"""
    if source.is_known_to_be_clean():
        return False, ""
    included = source.included_files()
    found = source.examine()
    if not found and included is not None:
        source.keep_verdict(included)
    return True, found


def main():
    build, pattern, *options = sys.argv[1:]
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True, check=True).stdout
    entries = json.loads((ROOT / build / "compile_commands.json").read_text())
    entries = {entry["file"]: entry for entry in entries if re.search(pattern, entry["file"])}
    if not entries:
        sys.exit(f"tidy: no source of {build} is like {pattern}")
    # The long ones first, so that no core waits for the last one.
    entries = sorted(entries.values(), key=lambda entry: -os.path.getsize(entry["file"]))
    sources = [Source(entry, options, version) for entry in entries]
    looked_at = with_findings = 0
    with concurrent.futures.ThreadPoolExecutor(int(os.environ.get("JOBS") or os.cpu_count())) as pool:
        for was_looked_at, found in pool.map(judge, sources):
            looked_at += was_looked_at
            if found:
                with_findings += 1
                print(found, flush=True)
    print(f"{build}: {len(sources)} sources, {looked_at} looked at, {with_findings} with findings", flush=True)
    sys.exit(with_findings > 0)


main()

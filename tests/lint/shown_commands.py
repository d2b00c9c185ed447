"""The commands that CONTRIBUTING.md shows can be given as they stand.

What takes minutes is not carried out but looked up: a preset has to exist, a filter and a label have
to find tests, and files have to be there.
"""

import json
import re
import shlex
import subprocess
import sys
from pathlib import Path

FENCE = re.compile(r"```sh\n(.*?)```", re.DOTALL)
INLINE = re.compile(r"`((?:\./|cmake|ctest|build/|python3 |cpack)[^`]*)`")


def commands(text):
    shown = [line.split("#")[0] for block in FENCE.findall(text) for line in block.splitlines()]
    shown += INLINE.findall(FENCE.sub("", text).replace("\n", " "))
    for line in shown:
        yield from filter(None, (part.strip() for part in line.split("&&")))


def output(arguments, directory):
    return subprocess.run(arguments, cwd=directory, capture_output=True, text=True, check=False).stdout


class Checker:
    def __init__(self, root):
        self.root = root
        presets = json.loads((root / "CMakePresets.json").read_text(encoding="utf-8"))
        self.presets = {kind: {preset["name"] for preset in presets[f"{kind}Presets"]
                               if not preset.get("hidden")}
                        for kind in ("configure", "build", "test", "package")}

    def cmake(self, words):
        kind = "build" if words[1] == "--build" else "configure"
        if words[1] == "--install":
            return True
        return words[words.index("--preset") + 1] in self.presets[kind]

    def cpack(self, words):
        return words[words.index("--preset") + 1] in self.presets["package"]

    def ctest(self, words):
        if words[words.index("--preset") + 1] not in self.presets["test"]:
            return False
        if words[words.index("--preset") + 1] != "dev":
            return True  # that build may not be there
        found = re.search(r"Total Tests: (\d+)", output([*words, "-N"], self.root))
        return found is not None and int(found.group(1)) > 0

    def program(self, words):
        if not words[0].startswith("build/dev/"):
            return True  # that build may not be there
        tests = output([self.root / words[0], *words[1:], "--gtest_list_tests"], self.root)
        return any(line.startswith("  ") for line in tests.splitlines())

    def can_be_given(self, command):
        words = shlex.split(command)
        if words[0] in ("cmake", "ctest", "cpack"):
            return getattr(self, words[0])(words)
        if words[0] == "python3":
            return (self.root / words[1]).is_file()
        if words[0].startswith("build/"):
            return self.program(words)
        return (self.root / words[0]).is_file()


def main():
    root = Path(sys.argv[1])
    checker = Checker(root)
    shown = list(commands((root / "CONTRIBUTING.md").read_text(encoding="utf-8")))
    wrong = [command for command in shown if not checker.can_be_given(command)]
    print("\n".join(f"cannot be given: {command}" for command in wrong)
          or f"{len(shown)} commands can be given.")
    return 1 if wrong or not shown else 0


if __name__ == "__main__":
    sys.exit(main())

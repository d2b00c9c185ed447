#!/usr/bin/env python3
"""Breaks conditions that matter, one after the other, and sees that a test notices each.

    tests/mutations/run.py

Works on a copy of what is committed, in a folder of its own; takes some minutes.
"""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
# Where, what it says, what it says for once, and the room whose tests must notice.
MUTATIONS = (
    ("core/Moves.cpp", "GoodGame = 33", "GoodGame = 34", "core"),
    ("core/Moves.cpp", "state_.MoveCount == 0 ? MenuChange", "state_.MoveCount == 1 ? MenuChange",
     "core"),
    ("core/Moves.cpp", "if (state_.ApplyingMoves) return;\n  window_.EnableClock(true);",
     "window_.EnableClock(true);", "core"),
    ("core/Moves.cpp", "free = state_.Cell(x, y) == GameState::Unvisited", "free = true", "core"),
    ("core/Moves.cpp", "button == -1", "button != -1", "core"),
    ("core/UndoRedo.cpp", "i = state_.MoveCount; i <", "i = state_.MoveCount + 1; i <", "core"),
    ("core/UndoRedo.cpp", "if (!playerPickedFirstSquare) return;", "", "core"),
    ("core/UndoRedo.cpp", "state_.MoveCount == 2", "state_.MoveCount == 3", "core"),
    ("core/TimeString.cpp", "(halfSeconds % 2) * 5", "(halfSeconds % 2)", "core"),
    ("core/Clock.cpp", "PlayersChoice ? 0 : 1", "PlayersChoice ? 1 : 0", "core"),
    ("core/GameFlow.cpp", "state_.MoveCount > 1 ||", "state_.MoveCount > 0 ||", "core"),
    ("core/GameFlow.cpp", "if (state_.ApplyingMoves) return;\n  ClearRedo();", "ClearRedo();",
     "core"),
    ("solver/TourSolver.cpp", "task.SolveRefreshRate + 1", "task.SolveRefreshRate", "solver"),
    ("solver/TourSearch.cpp", "pauseAt_ = entries_ + entries", "pauseAt_ = entries_ + entries + 1",
     "solver"),
    ("storage/ScoreLists.cpp", ".time <= game.totalTime", ".time < game.totalTime", "storage"),
    ("storage/ScoreLists.cpp", ".time > game.totalTime", ".time >= game.totalTime", "storage"),
    ("storage/GameFile.cpp", "line->endsWith('-')", "line->startsWith('-')", "storage"),
    ("storage/GameFile.cpp", "if (x != -1) file.failure", "if (x != -2) file.failure", "storage"),
    ("storage/MoveListExport.cpp", '".rtf"', '".RTF"', "storage"),
    ("solver/TourSearch.cpp", "Reachable(targets, free, free)",
     "Reachable(targets, free, free) & ~OneSquare(knight)", "solver"),
    ("solver/TourSearch.cpp", "if (level == &levels_[SquareCount]) return;", "", "solver"),
    ("solver/TourSearch.cpp", "return way.closing ? SubtreeSizes::Unknown : way.forced + 1;",
     "return way.forced + 1;", "solver"),
    ("solver/TourSearch.cpp", "entries >= pauseAt_ - entries_", "entries > pauseAt_ - entries_",
     "solver"),
    ("solver/SubtreeSizes.h", "(row.rest & RootMask) == Root(subtree)",
     "((row.rest ^ Root(subtree)) & RootMask) <= 1", "solver"),
    ("solver/TourSolver.cpp", "task.window.RestoreColors();",
     "task.window.RestoreColors();\n  task.window.RestoreColors();", "solver"),
    ("solver/Autoplay.cpp", "game.MakeRandomStartingMove();\n    window.RestoreColors();",
     "game.MakeRandomStartingMove();", "solver"),
    ("solver/Autoplay.cpp", "  random.Reseed();", "", "solver"),
    ("storage/SavingFile.cpp", "return Persist([this] { return fsync(Number()); }) == 0;",
     "return true;", "faults"),
    ("storage/SavingFile.cpp", "return Persist([this] { return fsync(Number()); }) == 0;",
     "fsync(Number());\n  return true;", "faults"),
    ("storage/OpenFolder.cpp", "if (Persist([this] { return fsync(Number()); }) == 0) return true;",
     "return true;", "faults"),
    ("storage/OpenFolder.cpp", "return errno == EINVAL || errno == EOPNOTSUPP || errno == EBADF;",
     "return true;", "faults"),
    ("storage/WrittenFile.cpp", " &&\n         Persist([&] { return fsync(file); }) == 0", "",
     "faults"),
    ("storage/WrittenFile.cpp", "access | O_NOFOLLOW | ", "access | ", "faults"),
    ("storage/WrittenFile.cpp", "if (before) std::ignore = PutOver(Number(), *before);", "",
     "faults"),
    ("storage/SavingFile.cpp", "isLocked ? HasName(file) : errno != EWOULDBLOCK", "true",
     "faults"),
    ("storage/SavingFile.cpp", "return flock(file.Number(), LOCK_EX | LOCK_NB) == 0;",
     "return true;", "storage"),
    ("storage/FileWriter.cpp", "ModeUntilRightsAreKnown = 0600", "ModeUntilRightsAreKnown = 0666",
     "faults"),
    ("storage/SavingFile.cpp", "O_RDONLY | O_NOFOLLOW | O_NONBLOCK", "O_RDONLY | O_NONBLOCK",
     "storage"),
    ("storage/SavingFile.cpp", "status.st_uid != geteuid() && status.st_uid != owner", "false",
     "storage"),
    ("storage/SystemCalls.h", "if (IsOpen()) close(number_);", "", "storage"),
    ("storage/SystemCalls.h", "sigaddset(&signal_, SIGXFSZ);", "", "storage"),
    ("storage/PathName.cpp", "PlaceOf(path).folder + '/' + text", "text", "storage"),
    ("storage/PathName.cpp", "LongestChainOfLinks = 40", "LongestChainOfLinks = 41", "storage"),
    ("storage/FileWriter.cpp", "old.HasOtherNames() || ", "", "storage"),
    ("storage/FileWriter.cpp", "place.isLinked || ", "", "storage"),
    ("storage/FileRights.cpp", "!isOwned && fchown", "false && fchown", "storage"),
    ("storage/FileRights.cpp", "fremovexattr(to, name.constData()) == 0", "true", "storage"),
    ("storage/FileRights.cpp", "LookAt(to, now) && now.st_mode == wanted.st_mode", "true",
     "storage"),
    ("storage/KeptFile.cpp", "if (stored == Stored::NotYet) onWaiting();", "", "storage"),
    ("storage/KeptFile.cpp", "if (stored == Stored::Yes) unsaved_.clear();", "unsaved_.clear();",
     "storage"),
    ("storage/clsIniFile.cpp", "LargestFile = qsizetype{1024} * 1024",
     "LargestFile = qsizetype{1024} * 1024 - 1", "storage"),
    ("storage/clsIniFile.cpp", "if (text.size() > LargestFile)", "if (text.size() >= LargestFile)",
     "storage"),
    ("storage/IniText.cpp", "value[end].isHighSurrogate() && end + 1 < value.size()",
     "value[end].isHighSurrogate() && end + 2 < value.size()", "storage"),
    ("storage/GameFile.cpp", "number - 1 > Limits::max()", "number > Limits::max()", "storage"),
)
# What other than the room's own program must notice, and what that needs to be built.
FAULTS = tuple(("python3", "-B", f"tests/faults/{name}.py", "build/dev/tests/faults/saver", "--short")
               for name in ("storage_faults", "interlopers"))


def run(*command, folder):
    return subprocess.run(command, cwd=folder, capture_output=True, text=True, check=False,
                          env={**os.environ, "GALLOPADE_KILLS": "3"})


def notices(copy, room):
    program = "saver" if room == "faults" else f"{room}_tests"
    built = run("cmake", "--build", "build/dev", "--target", program, folder=copy)
    if built.returncode != 0:
        return f"does not compile:\n{built.stdout[-2000:]}"
    tests = FAULTS if room == "faults" else ((f"build/dev/tests/{room}/{program}", "--gtest_brief=1"),)
    passed = all(run(*command, folder=copy).returncode == 0 for command in tests)
    return "NOT NOTICED" if passed else "noticed"


def main():
    missed = 0
    with tempfile.TemporaryDirectory() as folder:
        copy = Path(folder) / "copy"
        subprocess.run(["git", "clone", "-q", ROOT, copy], check=True)
        run("cmake", "--preset", "dev", "-DGALLOPADE_BENCH=OFF", folder=copy)
        for name, before, after, room in MUTATIONS:
            path = copy / name
            source = path.read_text(encoding="utf-8")
            assert source.count(before) == 1, f"{name} has {before!r} {source.count(before)} times"
            path.write_text(source.replace(before, after), encoding="utf-8")
            result = notices(copy, room)
            path.write_text(source, encoding="utf-8")
            missed += result != "noticed"
            print(f"{name}: {before!r}: {result}", flush=True)
    print(f"{len(MUTATIONS) - missed} of {len(MUTATIONS)} noticed")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())

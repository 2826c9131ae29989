"""Kills the program while it sends to a server, and sees that nothing is lost or cut: cloud_kill_test.py PROGRAM COUNT

Before each kill a recording appears, or takes the place of another, or goes. The kill comes at a random moment, so between any
two requests or in the middle of one. Afterwards both sides must have the same, byte for byte, and no conflicts. A part that the
server writes after the next pass has looked for it stays there, hidden.
"""

import os
import random
import sys
import time

from private_dav import PrivateDav


def contents(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir() if not path.name.startswith(".")}


def main(program, count):
    seed = os.environ.get("SEED", str(time.time_ns()))
    dice = random.Random(seed)
    print(f"SEED={seed}")
    killed, wanted = 0, {}
    with PrivateDav(program) as server:
        for number in range(int(count)):
            name = f"{number}.m4a" if not wanted or dice.random() < 0.6 else dice.choice(sorted(wanted))
            wanted[name] = dice.randbytes(dice.randrange(1, 4_000_000))
            (server.documents / "new").write_bytes(wanted[name])
            (server.documents / "new").rename(server.documents / name)
            process = server.start("cloud", "sync")
            try:
                process.wait(dice.uniform(0.0, 0.3))
            except Exception:
                process.kill()
                killed += 1
            process.wait()
        for _ in range(10):
            process = server.start("cloud", "sync")
            if process.wait() == 0:
                break
        here, there = contents(server.documents), contents(server.files)
        scraps = [path.name for path in server.files.iterdir() if path.name.startswith(".tavi-")]
        # By this the program knows the folder again.
        scraps.remove(".tavi-container")
    print(f"{count} times, {killed} killed; {len(wanted)} recordings, here {len(here)}, there {len(there)}, scraps {scraps}")
    if process.returncode != 0 or here != wanted or there != wanted or any(not name.startswith(".tavi-part") for name in scraps):
        wrong = [name for name in {*here, *there, *wanted} if not here.get(name) == there.get(name) == wanted.get(name)]
        print(f"FAILED: exit status {process.returncode}, different: {wrong}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

#!/usr/bin/env bash
# Drives the program by a script: ./robot [--app DIR] [--keep] [--log FILE] SCRIPT...
# docs/robot.md tells the language of the scripts.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for build in dev release; do
  if [[ -x $here/build/$build/robot && -d $here/build/$build/app ]]; then
    exec "$here/build/$build/robot" "$@"
  fi
done

cat >&2 <<'END'
The robot is not built yet. Build it and the program first:

  cmake --preset dev && cmake --build --preset dev
END
exit 2

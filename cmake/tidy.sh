#!/usr/bin/env bash
# clang-tidy over the logic sources that changed since the commit of 'base' (argument, default: the parent of
# the last merge into main that a fresh clone knows, else the last ten commits). Needs build/sanitize.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

base=${1:-$(git rev-parse --verify --quiet HEAD~10 || git rev-list --max-parents=0 HEAD | tail -n 1)}
git diff --name-only --diff-filter=d "$base" -- '*.cpp' |
    grep -F -x -f <(python3 - <<'PY'
import json, os
root = os.getcwd() + '/'
for entry in json.load(open('build/sanitize/compile_commands.json')):
    print(entry['file'].removeprefix(root))
PY
    ) | grep -v '^tests/' | xargs -r -n 4 -P 2 clang-tidy -p build/sanitize --quiet 2>/dev/null

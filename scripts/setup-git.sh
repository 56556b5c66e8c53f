#!/usr/bin/env bash
# Lets git merge the id-based catalogues as the union of both sides (translations/*.ts).
set -euo pipefail
cd "$(dirname "$0")/.."
git config merge.ts-union.name "union of id-based catalogue messages"
git config merge.ts-union.driver "/usr/bin/python3 scripts/ts-merge.py %O %A %B"

#!/usr/bin/env bash
# The names that the library ($1) exports are those of abi/exports.txt, no more and no fewer.
set -euo pipefail
cd "$(dirname "$0")/../.."
scripts/exports "$1" | diff -u abi/exports.txt - && exit
echo "The export list has changed. If it should: scripts/exports LIBRARY > abi/exports.txt"
exit 1

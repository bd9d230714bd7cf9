#!/usr/bin/env bash
# The headers stay light, for every source of a caller pays for them; and those of the primitives bring in none of the
# heavy standard ones.
set -euo pipefail
cd "$(dirname "$0")/../.."

scripts/headers vertra/numeric/vec4d.h vertra/vertra.h | awk '
    $2 ~ /vec4d/ { found++; limit = 5000 }
    $2 ~ /vertra.h/ { found++; limit = 20000 }
    limit && $4 >= limit { print $2 " has " $4 " lines, allowed are fewer than " limit; heavy = 1 }
    END { exit heavy || found != 2 }'

mapfile -t primitives < <(ls vertra/*/*.h | grep -Ev '/(foundation|interop|trigonometry)')
includes=$(printf '#include <%s>\n' "${primitives[@]}" | "${CXX:-g++}" -std=c++20 -I. -x c++ -M -)
! grep -E '/(cmath|iostream|string)( |$)' <<<"$includes"

#!/usr/bin/env bash
# g++ and clang++ refuse, in both scalars, the expressions of snippets.txt that are to be refused, and no others.
set -euo pipefail
set -f # a * is an operator
cd "$(dirname "$0")"

# expand TEXT: a line for each choice among what stands in braces
expand() {
    [[ $1 =~ ^([^{]*)\{([^}]*)\}(.*)$ ]] || { echo "$1" && return; }
    local before=${BASH_REMATCH[1]} after=${BASH_REMATCH[3]} choice
    for choice in ${BASH_REMATCH[2]}; do expand "$before$choice$after"; done
}
rows=$(grep -v '^#\|^$' snippets.txt | while read -r row; do expand "$row"; done)
allowed=$(grep '^+ ' <<<"$rows") refused=$(grep -v '^+ ' <<<"$rows" | sort -u)

names() { grep -oP '\b[A-Za-z_]\w*' <<<"$1" | sort -u; }
unknown=$(comm -13 <(names "$allowed") <(names "$refused"))
[[ ! $unknown ]] || { echo "in no expression that compiles: $unknown" && exit 1; }

# found COMPILER... SCALAR OTHER: the expressions with an error, each being a line of its own; and whatever error is
# elsewhere, or of the syntax alone
found() {
    {
        printf '%s\n' '#include <vertra/vertra.h>' '#include <iostream>' 'using namespace vertra;' \
            "using T = ${*: -2:1};" "using O = ${*: -1};" 'extern T s;' 'extern int n;' 'extern Vec2D<T> v2;' \
            'extern Vec3D<T> v3;' 'extern Vec4D<T> v4;' 'extern Position2D<T> p;' 'extern Matrix3D<T> m;' \
            'extern Color3D<T> c;' 'extern Quat3D<T> q;' \
            'template <class A> requires requires(A& a) { (a = a) = a; } void AssignTwice();' '#line 1 "row"'
        awk '{ sub(/^\+ /, ""); print "void Row" NR "() { static_cast<void>(" $0 "); }" }' <<<"$rows"
    } | "${@:1:$#-2}" -std=c++20 -fsyntax-only -I../.. -x c++ - 2>&1 |
        sed -nE '/error: expected/!s/^row:([0-9]+):.* error: .*/\1/; /^[0-9]+$|error: /p' |
        awk 'NR == FNR { row[NR] = $0; next } { print ($0 in row ? row[$0] : $0) }' <(echo "$rows") - | sort -u
}
for compiler in g++ 'clang++ -ferror-limit=0'; do
    for scalars in 'float double' 'double float'; do
        diff <(echo "$refused") <(found $compiler $scalars) ||
            { echo "$compiler, $scalars: < compiles, > does not" && exit 1; }
    done
done
echo "$(wc -l <<<"$refused") expressions refused, $(wc -l <<<"$allowed") compile"

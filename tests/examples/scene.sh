#!/usr/bin/env bash
# What the program scene ($1) prints, and what it refuses; works in the directory $2.
source "$(dirname "$0")/run.sh"

prints "the scene that comes along" '\s+sun +knot\.obj \(.*, -1\.55, .*\) to \(.*, 1\.55, .*\)'
mkdir -p meshes && printf '%s\n' 'v 0 0 0' 'v 1 2 3' 'v 1 0 0' 'f 1 2 3' >meshes/part.obj
part='"mesh": "meshes/part.obj"' n='{"root": "a", "nodes": {'
echo "$n \"tip\": {$part, \"rotate\": [90, 90, 0]}, \"m\": {$part, \"matrix\": [0,1,0,0, -1,0,0,0, 0,0,1,0, 5,6,7,1]},
    \"arm\": {$part, \"translate\": [1,0,0], \"rotate\": [90,0,0], \"scale\": [2,1,1], \"children\": [\"tip\"]},
    \"a\": {\"translate\": [10,20,30], \"rotate\": [0,0,90], \"children\": [\"arm\", \"m\"]}}}" >tree.json
draws "scaled, turned, moved, each node within its parent" 'scene   4 nodes, 3 with a mesh
box     (3, 21, 27) to (13, 25, 40)
eye     (9, 23, 99)
a                        at (10, 20, 30)
  arm                    meshes/part.obj (10, 21, 30) to (13, 23, 32)
    tip                  meshes/part.obj (9, 21, 27) to (10, 25, 30)
  m                      meshes/part.obj (3, 23, 37) to (4, 25, 40)' tree.json --eye 9 23 99

# The view is 10 * tan(pi/8) = 4.142 wide to each side at z = -10, and ends at 1.01 * (|(.5, 1, -8.5)| + |(1, 2, 3)| / 2)
# = 10.548. The box of a part runs from its place to 1, 2, 3 beyond.
nodes="\"middle\": {$part, \"translate\": [0, 0, -10]}" names='"middle"' lines='\s+middle +[^:]*\)'
for row in left/-5.2,0,-10/-5.1,0,-10 right/4.2,0,-10/4.1,0,-10 bottom/0,-6.2,-10/0,-6.1,-10 \
    top/0,4.2,-10/0,4.1,-10 near/0,0,0.1/0,0,-1 far/0,0,-13.6/0,0,-13.5; do
    IFS=/ read -r side outside inside <<<"$row"
    nodes+=", \"$side\": {$part, \"translate\": [$outside]}, \"cut $side\": {$part, \"translate\": [$inside]}"
    names+=", \"$side\", \"cut $side\""
    lines+=$'\n'"\s+$side .*, out of view: $side"$'\n'"\s+cut $side +[^:]*\)"
done
echo "$n \"a\": {\"children\": [$names]}, $nodes}}" >view.json
view=(view.json --cull --frame middle --eye 0 0 0 --target 0 0 -1)
prints "what is out of view" "$lines" "${view[@]}" --size 9 9
prints "a wider view" $'\\s+left +[^:]*\)\n\\s+top .*: top' "${view[@]}" --size 11 10

# chain LEVELS: a scene of so many, one node each
chain() {
    seq 2 "$1" | awk -v s="$n" '{ printf "%s \"%s\": {\"children\": [\"%d\"]}", s, p ? p : "a", $1; s = ","; p = $1 }'
    echo ", \"$1\": {$part}}}"
}
chain 5000 >deep.json && prints "as deep as it goes" '\s+5000 +meshes.*' deep.json
chain 5001 >deep.json && refuses "deeper" 'deep.json: node "5000": children: there are more than 5000' deep.json

open=$(printf '[%.0s' {1..100000}) close=$(printf ']%.0s' {1..100000})
while IFS='|' read -r what words content; do
    printf '%b' "$content" >bad.json
    refuses "$what" "bad.json:$words" bad.json
done <<END
many brackets| node "a": children: needs|$n "a": {"children": [$open$close]}}}
NaN|2: syntax error|$n\n"a": {"translate": [NaN, 0, 0]}}}
infinity once it is read|2: number overflow|$n\n"a": {"translate": [1e999\n, 0, 0]}}}
one name for two nodes|2: the key "a" stands twice|$n "a": {},\n"a": {}}}
an unknown field| node "a": unknown field "rotation"|$n "a": {"rotation": [0, 0, 0]}}}
a node above itself| node "b": children: cyclic reference to "a"|$n "a": {"children": ["b"]}, "b": {"children": ["a"]}}}
a node of two parents| node "a": children: "b" is a child of "a" already|$n "a": {"children": ["b", "b"]}, "b": {}}}
a node of no parent| node "b": is not below the root|$n "a": {}, "b": {}}}
too far| node "a": rotate: needs 3 numbers|$n "a": {"rotate": [0, 2e9, 0]}}}
too far in the world| node "b": its matrix|$n "a": {"scale": [1e5, 1, 1], "children": ["b"]}, "b": {"scale": [1e5, 1, 1]}}}
a matrix that projects| node "a": matrix: needs 0|$n "a": {"matrix": [1,0,0,0, 0,1,0,0, 0,0,1,1, 0,0,0,1]}}}
no such mesh| node "a": missing.obj: there is no such file|$n "a": {"mesh": "missing.obj"}}}
a line break in a name| node "a": mesh: needs a text|$n "a": {"mesh": "one\\\\ntwo"}}}
END
refuses "no such file" "missing.json: there is no such file" missing.json
exit $((failures != 0))

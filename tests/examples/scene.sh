#!/usr/bin/env bash
# What the program scene ($1) prints, and what it refuses; works in the directory $2.
source "$(dirname "$0")/run.sh"

prints "the scene that comes along" 'orrery +at \(0, 0, 0\)
\s+sun +knot\.obj \(.*, -1\.55, .*\) to \(.*, 1\.55, .*\)'

mkdir -p meshes && printf '%s\n' 'v 0 0 0' 'v 1 2 3' 'v 1 0 0' 'f 1 2 3' >meshes/part.obj
part='"mesh": "meshes/part.obj"'
echo '{"root": "base", "nodes": {
    "tip": {'"$part"', "rotate": [90, 90, 0]},
    "base": {"translate": [10, 20, 30], "rotate": [0, 0, 90], "children": ["arm", "other arm"]},
    "arm": {'"$part"', "translate": [1, 0, 0], "rotate": [90, 0, 0], "scale": [2, 1, 1], "children": ["tip"]},
    "other arm": {'"$part"', "matrix": [0, 1, 0, 0,  -1, 0, 0, 0,  0, 0, 1, 0,  5, 6, 7, 1]}}}' >scene.json
draws "scaled, turned, moved, each node within its parent" 'scene   4 nodes, 3 with a mesh
box     (3, 21, 27) to (13, 25, 40)
eye     (9, 23, 99)
base                     at (10, 20, 30)
  arm                    meshes/part.obj (10, 21, 30) to (13, 23, 32)
    tip                  meshes/part.obj (9, 21, 27) to (10, 25, 30)
  other arm              meshes/part.obj (3, 23, 37) to (4, 25, 40)' scene.json --eye 9 23 99

# The view is 10 * tan(pi/8) = 4.142 wide to each side at z = -10, and ends at 1.01 * (|(.5, 1, -8.5)| + |(1, 2, 3)| / 2)
# = 10.548. The box of a part runs from its place to 1, 2, 3 beyond.
nodes='' names='' lines='all .*'
while IFS='|' read -r name place mark; do
    nodes+=", \"$name\": {$part, \"translate\": [$place]}"
    names+="${names:+, }\"$name\""
    lines+=$'\n'"\s+$name +meshes.* to [^:]*\)${mark:+, out of view: $mark}"
done <<'END'
middle|0, 0, -10|
left|-5.2, 0, -10|left
left edge|-5.1, 0, -10|
right|4.2, 0, -10|right
right edge|4.1, 0, -10|
below|0, -6.2, -10|bottom
lower edge|0, -6.1, -10|
above|0, 4.2, -10|top
upper edge|0, 4.1, -10|
behind|0, 0, 0.1|near
around the eye|0, 0, -1|
beyond|0, 0, -13.6|far
far edge|0, 0, -13.5|
END
echo "{\"root\": \"all\", \"nodes\": {\"all\": {\"children\": [$names]}$nodes}}" >view.json
view=(view.json --cull --frame middle --eye 0 0 0 --target 0 0 -1)
prints "what is out of view" "$lines" "${view[@]}" --size 9 9
prints "a wider view" '\s+left +[^:]*\)
\s+above .*: top' "${view[@]}" --size 11 10

# chain LEVELS: a scene of so many, one node each
chain() {
    awk -v n="$1" -v part="$part" 'BEGIN {
        for (i = 1; i < n; ++i) printf "\"%d\": {\"children\": [\"%d\"]},\n", i, i + 1
        printf "\"%d\": {%s}", n, part }' | { echo '{"root": "1", "nodes": {'; cat; echo '}}'; } >chain.json
}
chain 5000 && prints "as deep as it goes" '\s+5000 +meshes.*' chain.json
chain 5001 && refuses "deeper" 'chain.json: node "5000": children: there are more than 5000' chain.json

n='{"root": "a", "nodes": {'
many=$(printf '[%.0s' {1..100000})
while IFS='|' read -r what words content; do
    printf '%b' "$content" >bad.json
    refuses "$what" "bad.json:$words" bad.json
done <<END
nothing in it| is empty|
many brackets|1: syntax error|$many
many brackets, closed| node "a": children: needs|$n "a": {"children": [$many${many//[/]}]}}}
not JSON|2: syntax error|{"root": "a",\nnodes}
NaN|2: syntax error|$n\n"a": {"translate": [NaN, 0, 0]}}}
infinity once it is read|2: number overflow|$n\n"a": {"translate": [1e999\n, 0, 0]}}}
one name for two nodes|2: the key "a" stands twice|$n "a": {},\n"a": {}}}
an unknown field| unknown field "Root"|{"Root": "a"}
an unknown field of a node| node "a": unknown field "rotation"|$n "a": {"rotation": [0, 0, 0]}}}
a node above itself| node "b": children: cyclic reference to "a"|$n "a": {"children": ["b"]}, "b": {"children": ["a"]}}}
a node of two parents| node "c": children: "d" is a child of "b" already|$n "a": {"children": ["b", "c"]}, "b": {"children": ["d"]}, "c": {"children": ["d"]}, "d": {}}}
a node of no parent| node "b": is not below the root|$n "a": {}, "b": {}}}
no such child| node "a": there is no node "b"|$n "a": {"children": ["b"]}}}
no root| there is no node "a"|$n}}
a vector too short| node "a": translate: needs 3 numbers|$n "a": {"translate": [1, 2]}}}
a text for a number| node "a": scale: needs 3 numbers|$n "a": {"scale": [1, 2, "3"]}}}
too far| node "a": rotate: needs 3 numbers|$n "a": {"rotate": [0, 2e9, 0]}}}
too far in the world| node "b": its matrix|$n "a": {"scale": [1e5, 1, 1], "children": ["b"]}, "b": {"scale": [1e5, 1, 1]}}}
a box that is too far| node "a": its box|$n "a": {$part, "scale": [1, 1, 1e9]}}}
a matrix that projects| node "a": matrix: needs 0, 0, 0 and 1|$n "a": {"matrix": [1,0,0,0, 0,1,0,0, 0,0,1,1, 0,0,0,1]}}}
a matrix and more| node "a": matrix: stands beside|$n "a": {"scale": [1, 1, 1], "matrix": [1,0,0,0, 0,1,0,0, 0,0,1,0, 0,0,0,1]}}}
no such mesh| node "a": missing.obj: there is no such file|$n "a": {"mesh": "missing.obj"}}}
a line break in a name| node "a": mesh: needs a text|$n "a": {"mesh": "one\\\\ntwo"}}}
nothing to see| no node has a mesh|$n "a": {}}}
a single point| is too small|$n "a": {$part, "scale": [0, 0, 0]}}}
END
refuses "no such file" "missing.json: there is no such file" missing.json
refuses "a group for the camera" '--frame: there is no node "all" with a mesh' view.json --frame all
exit $((failures != 0))

#!/usr/bin/env bash
# What the program pick ($1) prints, and what it refuses; works in the directory $2.
source "$(dirname "$0")/run.sh"

prints "the mesh that comes along is hit in the middle" \
    'mesh +2240 vertices, 4480 triangles
box +\(-2\.9088, -3\.3772, -1\.55\) to \(3\.55, 3\.3772, 1\.55\)
eye +\(.*\)
hit +triangle [0-9]+ at \(1\.1.*, 0\.6.*, 1\.3.*\), distance 11\..*
tests +4480 triangles in [0-9.]+ us, [0-9.]+ million a second'

# Far, near and far again, so that neither the first nor the last hit is the nearest. The eye stands 4 above the near
# triangle; a third of the picture is 2/3 * 4 * tan(pi/8) = 1.10457 there.
printf '%s\n' 'v -30 -30 -1' 'v 30 -30 -1' 'v 40 0 -1' 'v 30 30 -1' 'v -30 30 -1' \
    'v -10 -10 1' 'v 20 -10 1' 'v 0 20 1' 'f 1 2 3 4 5' 'f -3/1/1 -2/2/2 -1/3/3' 'f 1 4 5' >planes.obj
above=(planes.obj --eye 1.5 2.5 5 --target 1.5 2.5 0)
prints "straight down" 'mesh +8 vertices, 5 triangles
hit +triangle 3 at \(1\.5, 2\.5, 1\), distance 4' "${above[@]}" --size 1 1
prints "the pixel at the upper right" 'hit +triangle 3 at \(2\.60457, 3\.60457, 1\), distance 4\.2942' \
    "${above[@]}" --size 3 3 --pixel 2 0
prints "looking away" $'no hit\ntests +0 triangles .*' planes.obj --eye 1.5 2.5 5 --target 1.5 2.5 9
prints "in the box, beside the triangles" $'no hit\ntests +5 triangles .*' planes.obj --eye 39 29 5 --target 39 29 0

printf '%s\n' 'v -1 -1 0' 'v 1 -1 0' 'v 1 1 0' 'v -1 1 0' 'f 1 2 3 4' >square.obj
prints "an eye turned from z to x" 'eye +\((3|2\.9999.*), 0, (0|.*e-.*)\)' \
    square.obj --eye 0 0 3 --target 0 0 0 --orbit 90 0
draws "a square, with characters twice as high as wide" $'        \n@@@@@@@ \n@@@@@@@ \n@@@@@@@ ' \
    square.obj --eye .1 .3 3 --target .1 .3 0 --map 8 4
draws "a square seen at 15 degrees" '-' square.obj --eye 5.8 .3 1.55 --target .1 .3 0 --map 1 1
run --map 70 30
[[ $status == 0 && $(grep -cxE '[ .:+*#%@=-]{70}' out) == 30 && $(wc -l <out) == 30 ]] || fail "a picture of 70 x 30"

three='v 0 0 0\nv 1 0 0\nv 0 1 0\n'
while IFS='|' read -r what words content; do
    printf '%b' "$content" >bad.obj
    refuses "$what" "bad.obj:$words" bad.obj
done <<END
nothing in it| holds no triangles|
not a mesh| holds no triangles|\0\377\r\n\177ELF\t
nan, which reads as 0|3: the vertex's x|\n\nv nan 0 0\n
infinity once it is read|1: the vertex's z|v 0 0 1e999\n
a coordinate short, which reads as 0|1: the vertex's z|v 0 0\n
too far for the squares of lengths|1: the vertex's x|v 2e9 0 0\n
an index beyond the vertices|4: the face's index 4|${three}f 1 2 4\n
a quad that would be left out|4: the face's index 9|${three}f 1 2 3 9\n
an index of 0|4: the face's index 0|${three}f 0 1 2\n
before the first vertex|4: the face's index -4|${three}f -4 -2 -1\n
1 modulo 2^32|4: the face's index 4294967297|${three}f 4294967297 2 3\n
beyond 64 bits|4: the face has a corner without an index|${three}f 99999999999999999999 2 3\n
a texture index of 0| |${three}f 1/0 2/0 3/0\n
two corners|4: the face has 2 corners|${three}f 1 2\n
a single point| is too small|${three}f 1 1 1\n
END
while IFS='|' read -r words arguments; do
    read -ra arguments <<<"$arguments"
    refuses "${arguments[*]}" "$words" "${arguments[@]}"
done <<END
missing.obj: there is no such file|missing.obj
/: is not a file|/
--eye: eye and target are the same|--eye 1 2 3 --target 1 2 3
--eye: needs numbers|--eye nan 0 0
--pixel: outside of the picture|--size 8 6 --pixel 8 0
--pixel: outside of the picture|--size 8 6 --pixel 0 6
--pixel: outside of the picture|--pixel -1 0
--size: Value 0|--size 0 600
--size: Value 20000|--size 800 20000
--map: Value 99999999999|--map 99999999999 9
END
exit $((failures != 0))

#!/usr/bin/env bash
# What the program render ($1) draws, beside it the picture render.png, and what it refuses; works in the directory $2.
stored=$(realpath "$(dirname "$0")")/render.png
source "$(dirname "$0")/run.sh"

# The square reaches to 1 on both sides, the roof rises at 45 degrees to its ridge; both are seen from 3 above, where a
# pixel is 0.276 wide. By the diagonal of their boxes, the square root of 8, half of a lamp's light is left.
printf '%s\n' 'v -1 -1 0' 'v 1 -1 0' 'v 1 1 0' 'v -1 1 0' 'f 1 2 3 4' >square.obj
printf '%s\n' 'v 0 -1 1' 'v 0 1 1' 'v -1 0 0' 'v 1 0 0' 'f 1 2 3' 'f 1 4 2' >roof.obj
plain=('--size 9 9' '--eye 0 0 3' '--target 0 0 0' '--background 212121' '--color 80C040' '--highlight 000000'
    '--ambient 000000' '--sun 0 0 -1' '--sun-color 808080' '--lamp 0 0 2.828427' '--lamp-color 000000'
    '--spot 0 0 2.828427' '--spot-color 000000')
while IFS='|' read -r what x y color arguments; do
    for option in "${plain[@]}"; do [[ $arguments == *" ${option%% *} "* ]] || arguments+=" $option"; done
    read -ra arguments <<<"$arguments --output pixel.png"
    run "${arguments[@]}"
    got=$(pngtopnm pixel.png | pamcut "$x" "$y" 1 1 | pnmtoplainpnm | tail -n 1 | xargs)
    [[ $status == 0 && $got == "$color" ]] || fail "$what: $got, not $color"
done <<END
a miss, its bytes as they were given|0|0|33 33 33|square.obj --samples 3
straight under the sun: 128 * 128 / 255 and so on|4|4|64 96 32|square.obj
the sun at 60 degrees, half of it|4|4|32 48 16|square.obj --sun 0 -1.7320508 -1
the side in the dark, 32 of 255|4|4|16 24 8|square.obj --sun 0 0 1 --ambient 202020
the back, seen and lit from there|4|4|64 96 32|square.obj --eye 0 0 -3 --sun 0 0 1
half of a lamp on the full sun, up to 255|4|4|192 255 96|square.obj --sun-color FFFFFF --lamp-color FFFFFF
between the cones of a spot, 44.6 per cent|2|4|57 86 29|square.obj --sun-color 000000 --spot-color FFFFFF --spot-cone 20 40
outside of them|1|1|0 0 0|square.obj --sun-color 000000 --spot-color FFFFFF --spot-cone 20 40
30 degrees from a highlight, squared 3/4|4|4|96 48 24|square.obj --color 000000 --highlight FF8040 --shininess 2 --sun 0 -1.7320508 -1
a smooth ridge|4|4|64 96 32|roof.obj
a flat one: the cosine of 45 degrees|4|4|45 68 23|roof.obj --flat
END

knot=(--size 64 48 --orbit 30 10 --samples 2)
prints "the mesh that comes along" 'mesh +4480 triangles
rays +12288 in [0-9.e-]+ s, [0-9.]+ million a second
picture knot.png, 64 x 48' "${knot[@]}" --threads 1 --output knot.png
mean=$(pamarith -difference <(pngtopnm knot.png) <(pngtopnm "$stored") | pamsumm -mean -brief)
awk -v mean="$mean" 'BEGIN { exit !(mean != "" && mean < 0.2) }' || fail "differs by $mean from the stored picture"
run "${knot[@]}" --threads 5 --output five.png
cmp knot.png five.png || fail "the picture depends on the number of threads"

rm -rf half && mkdir half && echo old >half/old.png
refuses "no directory" "half/none/new.png: cannot be written" --output half/none/new.png
(
    failures=0
    trap '' XFSZ
    ulimit -f 1 # kilobytes: the file does not become larger
    refuses "no room" "half/old.png: cannot be written" --output half/old.png
    exit "$failures"
) || failures=$((failures + 1))
[[ $(ls half) == old.png && $(<half/old.png) == old ]] || fail "left behind: $(ls half)"
if [[ -c /dev/full ]]; then refuses "a full device" "/dev/full: cannot be written" --output /dev/full; fi
while IFS='|' read -r words arguments; do
    read -ra arguments <<<"$arguments"
    refuses "${arguments[*]}" "$words" "${arguments[@]}"
done <<END
missing.obj: there is no such file|missing.obj
--color: needs six|--color 12345
--sun: needs a direction|--sun 0 0 0
--lamp: needs numbers|--lamp 0 nan 0
--spot: the spot and its target|--spot 1 2 3 --spot-target 1 2 3
END
exit $((failures != 0))

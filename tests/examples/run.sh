# Sourced by the tests of the programs: sets up to run the program $1 in the directory $2.
set -euo pipefail
program=$(realpath "$1")
mkdir -p "$2" && cd "$2"
failures=0

run() {
    status=0
    "$program" "$@" >out 2>err || status=$?
}
fail() {
    failures=$((failures + 1))
    echo "$1: exit status $status"
    sed 's/^/    /' out err | cut -c -160
}

# prints WHAT LINES ARGUMENT...: each of the LINES, a regular expression, matches one that the program prints
prints() {
    run "${@:3}"
    local line ok=$((status == 0))
    while read -r line; do grep -qxE -- "$line" out || ok=0; done <<<"$2"
    ((ok)) && [[ ! -s err ]] || fail "$1"
}
# draws WHAT PICTURE ARGUMENT...: the PICTURE is all that the program prints
draws() {
    run "${@:3}"
    [[ $status == 0 && ! -s err && $(<out) == "$2" ]] || fail "$1"
}
# refuses WHAT WORDS ARGUMENT...: one line with the WORDS on stderr, status 2, nothing on stdout
refuses() {
    run "${@:3}"
    [[ $status == 2 && ! -s out && $(wc -l <err) == 1 && $(<err) == "${program##*/}: "*"$2"* ]] || fail "$1"
}

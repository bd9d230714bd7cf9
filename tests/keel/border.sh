#!/usr/bin/env bash
# Between the libraries vertra ($1) and keel ($2): the one function that vertra takes from keel is the destructor of
# CRegistrySection, here by way of its virtual table; and what one library defines, the other does not.
set -euo pipefail
section=keel::CRegistrySection
# names TYPES OPTIONS FILE: of the symbols of these types, as nm has them
names() { nm -C "${@:2}" | grep -E "^.{17}[$1] ((vtable|typeinfo( name)?) for )?keel::" | cut -c20- | LC_ALL=C sort -u; }

comm -12 <(names U -D "$1") <(names A-Z -D "$2") | grep -F "$section"
functions=$(comm -12 <(names U -D "$1") <(names TWi -D "$2"))
both=$(comm -12 <(names A-TV-Z "$1") <(names A-TV-Z "$2"))
unwanted=$(grep -vxF "$section::~CRegistrySection()" <<<"$functions"$'\n'"$both" | grep . || true)
echo "beyond that: ${unwanted:-nothing}"
[[ ! $unwanted ]]

#!/usr/bin/env bash
# The unit tests' objects ($@), compiled without optimisation, call the library and define none of its functions.
# A function that they define is missing from its header's list of instantiations.
set -euo pipefail

# What may be there: the kernel, the << of a failure's message, a colour times or over a scalar of another
# type than its own, and what belongs to keel.
kernel=ls
for name in FastInvSqrt FastSqrt Abs IsEqual; do kernel+="|${#name}$name"; done
allowed="6vertra($kernel)[IE]|6vertra6detail(7SignBit|7PutText|9PutDigits|5Named|6Fields)I|6vertra(ml|dv)I[fd][a-z]EE|4keel(27CBlowFishEncrypterDecrypter|15CSoftwareBuffer)C"

defined=$(nm --defined-only "$@" | grep ' W _ZNK\?\(6vertra\|4keel\)' | grep -Ev " _ZN($allowed)" | sort -u || true)
if [[ $defined ]]; then
    echo "Compiled into the callers instead of called in the library:"
    cut -c20- <<<"$defined" | c++filt
    exit 1
fi
calls=$(nm -u "$@" | grep -c ' U _ZNK\?6vertra' || true)
echo "$calls calls into the library"
((calls > 0))

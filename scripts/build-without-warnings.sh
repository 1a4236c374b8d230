#!/usr/bin/env bash
# Builds BUILD_DIR with JOBS jobs and fails when any tool printed a warning. The compilers stop on
# their own warnings (-Werror); moc and CMake only print theirs, and a moc warning such as a
# property without READ leaves a property that QML silently cannot read.
set -euo pipefail
build=${1:?usage: build-without-warnings.sh BUILD_DIR JOBS}
jobs=${2:?usage: build-without-warnings.sh BUILD_DIR JOBS}
log=$build/build-output.log
cmake --build "$build" -j "$jobs" 2>&1 | tee "$log"
if grep -E -i '(^|: )warning:|^CMake Warning' "$log"; then
    echo "The build printed the warnings above." >&2
    exit 1
fi

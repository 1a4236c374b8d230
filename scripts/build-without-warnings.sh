#!/usr/bin/env bash
# Builds BUILD_DIR with JOBS jobs and fails when a compiler or moc printed a warning. The compilers
# stop on their own warnings (-Werror); moc only prints its own, and a moc warning such as a
# property without READ leaves a property that QML silently cannot read.
set -euo pipefail
build=${1:?usage: build-without-warnings.sh BUILD_DIR JOBS}
jobs=${2:?usage: build-without-warnings.sh BUILD_DIR JOBS}
log=$build/build-output.log
cmake --build "$build" -j "$jobs" 2>&1 | tee "$log"
if grep -E -i '(^|: )warning:' "$log"; then
    echo "The build printed the warnings above." >&2
    exit 1
fi

#!/usr/bin/env bash
# Plants, in a copy of the tree, a source that includes an instrument header and one that tests a
# non-version macro; .ci/check-source must reject each, naming the file and the line.
set -euo pipefail

root="$1"
copy="$(mktemp -d)"
trap 'rm -rf "$copy"' EXIT
cp -R "$root/Source" "$root/HeadlessEditor" "$root/.ci" "$copy/"
planted="$copy/Source/CastellanEditor/Private/Planted.cpp"

# expect_rejection <contents> <expected message>
expect_rejection() {
	printf '%s\n' "$1" >"$planted"
	local output status=0
	output="$("$copy/.ci/check-source" "$copy" 2>&1)" || status=$?
	if [ "$status" -ne 1 ] || ! grep -qF -- "$2" <<<"$output"; then
		echo "check-source should have failed with: $2"
		echo "It exited $status and said:"
		echo "$output"
		exit 1
	fi
	echo "rejected as expected: $2"
}

expect_rejection $'#include "CoreMinimal.h"\n#include "HeadlessProjectManager.h"' \
	'Source/CastellanEditor/Private/Planted.cpp:2: includes "HeadlessProjectManager.h"'
expect_rejection $'#include "CoreMinimal.h"\n\n#if WITH_HEADLESS_EDITOR\n#endif' \
	'Source/CastellanEditor/Private/Planted.cpp:3: #if WITH_HEADLESS_EDITOR is not an engine-version guard'

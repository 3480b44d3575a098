#!/usr/bin/env bash
# Fails when a folder of src/ includes a folder below it. The folders in order:
# a folder may include itself and those before it; gui may include them all;
# only gui may include Qt.
set -euo pipefail
cd "$(dirname "$0")/../src"

order=(ports store accounts clients print housekeeping app)
rank() {
  local i
  for i in "${!order[@]}"; do [ "${order[$i]}" = "$1" ] && { echo "$i"; return; }; done
  echo -1
}

status=0
for folder in "${order[@]}"; do
  [ -d "$folder" ] || continue
  mine=$(rank "$folder")
  while IFS=: read -r file line text; do
    target=$(sed -E 's/^#include "([a-z]+)\/.*/\1/' <<<"$text")
    theirs=$(rank "$target")
    if [ "$target" = gui ] || [ "$theirs" -gt "$mine" ]; then
      echo "src/$file:$line: $folder may not include $target/ ($text)"
      status=1
    fi
  done < <(grep -rnE '^#include "[a-z]+/' "$folder" --include='*.h' --include='*.cpp' || true)
  if grep -rlE '^#include <Q|^#include "Q[A-Z]' "$folder" --include='*.h' --include='*.cpp'; then
    echo "Qt is included outside src/gui (files above)"
    status=1
  fi
done
exit $status

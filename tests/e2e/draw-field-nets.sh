#!/usr/bin/env bash
# Draws nets that other tools drew. Skipped where one of them is missing.
set -euo pipefail
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/pictures.sh"

for number in 05 13; do
  net=$(field_net "$number") || continue
  formats "$net"
done

finish

# SPDX-License-Identifier: GPL-3.0-or-later
# What both packages need; read with "source" by packaging/*/package.
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
version=$(sed -n 's/^project(Odmiennik VERSION \([0-9.]*\).*/\1/p' "$project/CMakeLists.txt")
dist=$project/dist
jobs=${ODMIENNIK_JOBS:-$(nproc)}

# The same commit gives the same bytes: its time stands in for the clock, and languages and zones of the
# one who builds do not matter.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$project" log -1 --format=%ct)}
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC

say() { echo "$*" >&2; }
fail() { say "Błąd: $*"; exit 1; }

# export_sources FOLDER: the files of the last commit.
export_sources() {
  mkdir -p "$1"
  git -C "$project" archive HEAD | tar x -C "$1"
}

warn_of_uncommitted() {
  [ -z "$(git -C "$project" status --porcelain)" ] ||
    say "Uwaga: pakowany jest ostatni commit; zmiany, których w nim nie ma, są pomijane."
}

# require_same FIRST SECOND: the same bytes, or it says where they differ.
require_same() {
  cmp "$1" "$2" >&2 || fail "dwa przebiegi dały różne pliki ${1##*/}"
}

# require_at_most FILE BYTES
require_at_most() {
  local size
  size=$(stat -c %s "$1")
  [ "$size" -le "$2" ] || fail "${1##*/} ma $size bajtów, a może mieć najwyżej $2"
}

# require_no_trace FOLDER TEXT...: no file below FOLDER has one of the texts in it. Folders of the
# machine that has built are of no use to anybody and tell of its owner.
require_no_trace() {
  local folder=$1 text found
  shift
  for text in "$@"; do
    found=$(grep -rlaF -e "$text" "$folder" || true)
    [ -z "$found" ] || fail "w pliku jest ślad folderu $text: $found"
  done
}

# publish FILE...: into dist/, each with its sum beside it.
publish() {
  local file
  mkdir -p "$dist"
  for file in "$@"; do
    cp "$file" "$dist/"
    (cd "$dist" && sha256sum "${file##*/}" >"${file##*/}.sha256")
  done
  (cd "$dist" && for file in "$@"; do
    echo "dist/${file##*/}  $(stat -c %s "${file##*/}") bajtów  SHA-256 $(cut -d' ' -f1 "${file##*/}.sha256")"
  done)
}
